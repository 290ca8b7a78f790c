#include "filters/outline_contrast.h"

#include <gtest/gtest.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;
using testing::PictureOf;
using testing::RowOf;

// Known to the web: #767676 is the lightest grey that has 4.5 on white, #949494 the one that has 3.
TEST(OutlineContrast, RatiosAreThoseOfTheGuidelines) {
    EXPECT_DOUBLE_EQ(ContrastRatio(0xFF000000, 0xFFFFFFFF), 21);
    EXPECT_DOUBLE_EQ(ContrastRatio(0xFFFFFFFF, 0xFFFFFFFF), 1);
    EXPECT_NEAR(ContrastRatio(0xFFFFFFFF, 0xFF767676), 4.54, 0.005);
    EXPECT_NEAR(ContrastRatio(0xFF949494, 0xFFFFFFFF), 3.03, 0.005);
    // (0.2126 + 0.05) / 0.05, (0.7152 + 0.05) / 0.05, (0.0722 + 0.05) / 0.05.
    EXPECT_NEAR(ContrastRatio(0xFFFF0000, 0xFF000000), 5.252, 1e-9);
    EXPECT_NEAR(ContrastRatio(0x0000FF00, 0xFF000000), 15.304, 1e-9);
    EXPECT_NEAR(ContrastRatio(0xFF0000FF, 0xFF000000), 2.444, 1e-9);
    // 32 / 255 is ((0.1254902 + 0.055) / 1.055) ^ 2.4 = 0.014444: 1.05 / 0.064444.
    EXPECT_NEAR(ContrastRatio(kLightGround, kDarkGround), 16.293, 0.001);
}

// White inside black: the inside is no outline, whether the figure ends before the edge or at it.
TEST(OutlineContrast, OnlyWhatTouchesTheOutsideCounts) {
    for (const int margin : {0, 1}) {
        graphics::Bitmap picture(4 + 2 * margin, 4 + 2 * margin);
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 4; ++x)
                picture.SetPixel(x + margin, y + margin,
                                 x % 3 == 0 || y % 3 == 0 ? 0xFF000000 : 0xFFFFFFFF);
        EXPECT_EQ(OutlineContrast(picture, 0xFFFFFFFF), 21) << margin;
    }
    // The neighbours of a hole of alpha 127 do: four black ones beside sixteen of the edge.
    graphics::Bitmap ring = testing::FilledPicture(5, 5, 0xFFFFFFFF);
    ring.SetPixel(2, 2, 0x7F000000);
    for (const auto& [x, y] : {std::pair(1, 2), {3, 2}, {2, 1}, {2, 3}})
        ring.SetPixel(x, y, 0xFF000000);
    EXPECT_EQ(OutlineContrast(ring, 0xFF000000), 21) << "16 of 20 are white";
    for (int i = 0; i < 5; ++i)
        ring.SetPixel(i, 0, 0xFF000000), ring.SetPixel(i, 4, 0xFF000000);
    EXPECT_EQ(OutlineContrast(ring, 0xFF000000), 1) << "14 of 20 are black";
    // A diagonal neighbour that is clear does not count.
    ring = testing::FilledPicture(4, 4, 0xFF000000);
    ring.SetPixel(0, 0, 0);
    ring.SetPixel(1, 1, 0xFFFFFFFF);
    EXPECT_EQ(OutlineContrast(ring, 0xFFFFFFFF), 21);
}

TEST(OutlineContrast, TheMedianIsTheMiddleOneOrTheMeanOfTwo) {
    const Argb black = 0xFF000000, white = 0xFFFFFFFF, red = 0xFFFF0000;
    EXPECT_NEAR(*OutlineContrast(RowOf({white, red, black}), black), 5.252, 1e-9);
    EXPECT_DOUBLE_EQ(*OutlineContrast(RowOf({white, black}), black), 11);
    EXPECT_NEAR(*OutlineContrast(RowOf({black, white, red, black}), black), (1 + 5.252) / 2, 1e-9);
    // By the straight colour, whatever the alpha; below 128 not at all.
    EXPECT_NEAR(*OutlineContrast(RowOf({0x80FF0000, 0x7FFFFFFF, 0x10FFFFFF}), black), 5.252, 1e-9);
    EXPECT_EQ(OutlineContrast(RowOf({0x7FFFFFFF, 0}), black), std::nullopt);
    EXPECT_EQ(OutlineContrast({}, black), std::nullopt);
}

// A black line on black is seen by the white two pixels inside it, not three, and not by what
// shines through.
TEST(OutlineContrast, TheRimTakesTheBestOfWhatIsJustInside) {
    const Argb black = 0xFF000000, white = 0xFFFFFFFF;
    const auto framed = [](int line, Argb inside) {
        graphics::Bitmap picture = testing::FilledPicture(12, 12, 0xFF000000);
        for (int y = line; y < 12 - line; ++y)
            for (int x = line; x < 12 - line; ++x)
                picture.SetPixel(x, y, inside);
        return picture;
    };
    EXPECT_EQ(OutlineContrast(framed(2, white), black), 1);
    EXPECT_EQ(RimContrast(framed(2, white), black), 21);
    EXPECT_EQ(RimContrast(framed(3, white), black), 1);
    EXPECT_EQ(RimContrast(framed(1, 0x7FFFFFFF), black), 1);
    EXPECT_EQ(RimContrast({}, black), std::nullopt);
}

}  // namespace
}  // namespace orbelle::filters
