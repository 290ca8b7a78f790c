#include "filters/round_shape.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "graphics/drawing_context.h"
#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::RectF;

// Visible columns of a row, as first and last.
std::pair<int, int> Span(const graphics::Bitmap& picture, int y) {
    const std::vector<int> alphas = testing::AlphaRow(picture, y);
    const auto first = std::ranges::find(alphas, 255) - alphas.begin();
    const auto last = std::ranges::find(alphas.rbegin(), alphas.rend(), 255) - alphas.rbegin();
    return {static_cast<int>(first), static_cast<int>(alphas.size()) - 1 - static_cast<int>(last)};
}

TEST(RoundShape, APlateOf24HasRadius4) {
    graphics::Bitmap picture(24, 24);
    graphics::DrawingContext context(picture);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.FillPath(graphics::SolidBrush{0xFF000000}, IosPlatePath(24, 24, 0, 0));
    const std::map<int, std::pair<int, int>> spans = {{0, {2, 21}},  {1, {1, 22}},  {2, {0, 23}},
                                                      {21, {0, 23}}, {22, {1, 22}}, {23, {2, 21}}};
    for (const auto& [row, span] : spans)
        EXPECT_EQ(Span(picture, row), span) << "row " << row;
}

TEST(RoundShape, SidesShorterThanTwoRadiiAreOvershot) {
    EXPECT_EQ(RoundShape(1, 2, 30, 20, 6).WorldBounds(), (RectF{1, 2, 30, 20}));
    EXPECT_EQ(RoundShape(1, 2, 4, 20, 6).WorldBounds(), (RectF{1, 2, 12, 20}));
    EXPECT_EQ(RoundShape(0, 0, 7, 5, 0).WorldBounds(), (RectF{0, 0, 7, 5}));
}

}  // namespace
}  // namespace orbelle::filters
