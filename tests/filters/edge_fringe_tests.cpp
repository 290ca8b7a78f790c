#include "filters/edge_fringe.h"

#include <gtest/gtest.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;
using testing::FilledPicture;
using testing::RowOf;

constexpr Argb kBody = 0xFF406080;

// Both pixels beside the body are of that colour.
bool IsFringe(Argb edge) {
    return HasFringe(RowOf({0, edge, kBody, kBody, edge, 0}));
}

TEST(EdgeFringe, AFaintPixelOfAForeignColourBesideTheBodyIsOne) {
    EXPECT_TRUE(IsFringe(0x20FFFFFF));
    EXPECT_FALSE(IsFringe(0x20406080));
    // 64 in each channel are near, 65 in any are not.
    EXPECT_FALSE(IsFringe(0x208020C0));
    EXPECT_TRUE(IsFringe(0x208120C0));
    EXPECT_TRUE(IsFringe(0x20801FC0));
    EXPECT_TRUE(IsFringe(0x208020C1));
    // Alpha 1 to 127 is faint.
    EXPECT_TRUE(IsFringe(0x01FFFFFF));
    EXPECT_TRUE(IsFringe(0x7FFFFFFF));
    EXPECT_FALSE(IsFringe(0x80FFFFFF));
    EXPECT_FALSE(IsFringe(0x00FFFFFF));
    EXPECT_FALSE(HasFringe({}));
}

TEST(EdgeFringe, OnlyWhatTouchesTheOpaqueBodyIsItsEdge) {
    const Argb white = 0x40FFFFFF;
    EXPECT_FALSE(HasFringe(RowOf({white, 0, kBody}))) << "apart from it";
    EXPECT_FALSE(HasFringe(RowOf({white, 0xFE406080, kBody}))) << "beside one that shines through";
    graphics::Bitmap corner = FilledPicture(2, 2, 0);
    corner.SetPixel(0, 0, kBody);
    corner.SetPixel(1, 1, white);
    EXPECT_FALSE(HasFringe(corner)) << "corner to corner";
    corner.SetPixel(1, 0, white);
    EXPECT_TRUE(HasFringe(corner));
    EXPECT_FALSE(HasFringe(RowOf({white, white}))) << "no body at all";
}

// White beside a dark outline is at home when the body inside is white.
TEST(EdgeFringe, ColoursComeFromTheWholeNeighbourhood) {
    const Argb white = 0x40FFFFFF, inside = 0xFFE0E0E0;
    EXPECT_FALSE(HasFringe(RowOf({white, kBody, kBody, inside})));
    EXPECT_TRUE(HasFringe(RowOf({white, kBody, kBody, kBody, inside})));
    EXPECT_TRUE(HasFringe(RowOf({white, kBody, 0xFEE0E0E0}))) << "not from what shines through";
    // The last white pixel that is near lies three down and three across.
    graphics::Bitmap square = FilledPicture(5, 5, kBody);
    square.SetPixel(0, 0, white);
    square.SetPixel(4, 3, inside);
    square.SetPixel(3, 4, inside);
    EXPECT_TRUE(HasFringe(square));
    square.SetPixel(3, 3, inside);
    EXPECT_FALSE(HasFringe(square));
}

// The body is (64, 96, 128).
TEST(EdgeFringe, ALightOneIsBrighterInOneChannel) {
    const auto isLight = [](Argb edge) {
        return HasLightFringe(RowOf({0, edge, kBody, kBody, edge, 0}));
    };
    EXPECT_TRUE(isLight(0x20FFFFFF));
    EXPECT_TRUE(isLight(0x2081003F)) << "though darker in the others";
    EXPECT_FALSE(isLight(0x208000C0));
    EXPECT_FALSE(isLight(0x20000000));
    EXPECT_TRUE(IsFringe(0x20000000)) << "a dark one";
    EXPECT_FALSE(HasLightFringe(RowOf({0x20FFFFFF, kBody, kBody, 0xFFE0E0E0})));
}

TEST(EdgeFringe, OneInTwentyMayBeForeign) {
    std::vector<Argb> row;
    for (int i = 0; i < 20; ++i)
        row.insert(row.end(), {0x40406080, kBody, 0});
    row[0] = 0x40FFFFFF;
    EXPECT_FALSE(HasFringe(RowOf(row)));
    row.erase(row.end() - 3, row.end());
    EXPECT_TRUE(HasFringe(RowOf(row))) << "one of nineteen";
}

}  // namespace
}  // namespace orbelle::filters
