#include "app/gif_preview.h"

#include <gtest/gtest.h>

#include "support/pictures.h"

namespace orbelle::app {

using graphics::Bitmap;
using graphics::RectF;
using testing::SamePixels;

namespace {

TEST(GifPreview, PicturesAreCentredAndEachAxisIsLimitedOnItsOwn) {
    const struct {
        int Width, Height, BoxWidth, BoxHeight;
        RectF Place;
    } cases[] = {
        {10, 10, 21, 30, {5, 10, 10, 10}},
        {40, 10, 20, 15, {0, 2, 20, 10}},
        {40, 50, 20, 15, {0, 0, 20, 15}},
    };
    for (const auto& [width, height, boxWidth, boxHeight, place] : cases)
        EXPECT_EQ(PreviewRect(Bitmap(width, height), boxWidth, boxHeight), place);
}

TEST(GifPreview, TheCheckerHasWholeSquaresOnly) {
    Bitmap box(19, 12);
    graphics::DrawingContext context(box);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    DrawPreviewChecker(context, 19, 12);
    const std::vector<std::string> upper(5, ".....#####.........");
    const std::vector<std::string> lower(5, "#####.....#####....");
    std::vector<std::string> rows(upper);
    rows.insert(rows.end(), lower.begin(), lower.end());
    rows.resize(12, std::string(19, '.'));
    EXPECT_TRUE(SamePixels(box, testing::PictureOf(rows, 0x14000000)));
}

}  // namespace
}  // namespace orbelle::app
