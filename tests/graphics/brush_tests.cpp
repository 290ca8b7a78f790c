#include "graphics/brush.h"

#include <gtest/gtest.h>

namespace orbelle::graphics {
namespace {

constexpr auto kHorizontal = LinearGradientMode::Horizontal;
constexpr auto kVertical = LinearGradientMode::Vertical;

TEST(LineBrush, AFlatRectangleMakesNoBrush) {
    EXPECT_FALSE(CreateLineBrushFromRect({1, 1, 0, 5}, 0, 0, kHorizontal));
    EXPECT_FALSE(CreateLineBrushFromRect({1, 1, 5, 0}, 0, 0, kHorizontal));
    EXPECT_TRUE(CreateLineBrushFromRect({1, 1, 5, 5}, 0, 0, kHorizontal));
}

TEST(LineBrush, AlphaFallsFromTopToBottom) {
    const auto brush = CreateLineBrushFromRect({0, 0, 42, 42}, 0xC8FFFFFF, 0x14FFFFFF, kVertical);
    ASSERT_TRUE(brush);
    const unsigned half[] = {198, 194, 189}, none[] = {200, 196, 191};
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(brush->ColorAt(7, row + 0.5), SetAlphaByte(0xFFFFFF, half[row]));
        EXPECT_EQ(brush->ColorAt(-90, row), SetAlphaByte(0xFFFFFF, none[row]));
    }
}

TEST(LineBrush, ColorsAreMixedByTheirAlpha) {
    const LinearGradientBrush fromNothing{{0, 0, 10, 10}, 0x00FF0000, 0xFF0000FF};
    EXPECT_EQ(fromNothing.ColorAt(0, 0), 0u);
    EXPECT_EQ(fromNothing.ColorAt(5, 0), 0x800000FFu);
    const LinearGradientBrush soft{{0, 0, 10, 10}, 0x40FF0000, 0xC00000FF};
    // A quarter of the weight is the red end's: 255 x 64 / (64 + 192) = 63.75.
    EXPECT_EQ(soft.ColorAt(5, 0), 0x804000BFu);
}

TEST(LineBrush, GoesToAndFroOutsideTheRectangle) {
    const LinearGradientBrush brush{{10, 0, 10, 10}, 0xFF000000, 0xFF0000FF, kHorizontal};
    const std::pair<double, unsigned> cases[] = {{12, 51}, {20, 255}, {22, 204}, {30, 0},
                                                 {32, 51}, {8, 51},   {-2, 204}};
    for (const auto& [x, blue] : cases)
        EXPECT_EQ(BlueOf(brush.ColorAt(x, 3)), blue) << x;
    const LinearGradientBrush flat{{10, 0, 0, 0}, 0xFF112233, 0xFF0000FF};
    EXPECT_EQ(flat.ColorAt(10, 3), 0xFF112233u);
    EXPECT_EQ(flat.ColorAt(11, 3), 0xFF112233u);
}

}  // namespace
}  // namespace orbelle::graphics
