#include "graphics/image_attributes.h"

#include <gtest/gtest.h>

#include <limits>

namespace orbelle::graphics {
namespace {

TEST(ImageAttributes, OpacityRoundsHalvesUpAndKeepsTheColour) {
    ImageAttributes half{OpacityMatrix(0.5F)};
    EXPECT_EQ(half.Apply(0xFF102030), Argb{0x80102030});
    EXPECT_EQ(half.Apply(0x01102030), Argb{0x01102030});
    EXPECT_EQ(half.Apply(0x00102030), Argb{0x00102030});
    EXPECT_EQ(ImageAttributes{OpacityMatrix(0)}.Apply(0xFF102030), Argb{0x00102030});
    EXPECT_EQ(ImageAttributes{OpacityMatrix(1)}.Apply(0x7F102030), Argb{0x7F102030});
    // 0.9F lies just below 0.9, so 135 lies below 121.5; 0.3F just above 0.3, so 5 above 1.5.
    EXPECT_EQ(ImageAttributes{OpacityMatrix(0.9F)}.Apply(135u << 24), Argb{121u << 24});
    EXPECT_EQ(ImageAttributes{OpacityMatrix(0.3F)}.Apply(5u << 24), Argb{2u << 24});
}

TEST(ImageAttributes, ThreeTenthsInTheColourCellsMakeGrey) {
    ColorMatrix grey = OpacityMatrix(1);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            grey[row][column] = 0.3F;
    }
    const ImageAttributes attributes{grey};
    EXPECT_EQ(attributes.Apply(0xFFFFFFFF), Argb{0xFFE6E6E6});
    EXPECT_EQ(attributes.Apply(0x40808080), Argb{0x40737373});
    EXPECT_EQ(attributes.Apply(0x00FF0000), Argb{0x004D4D4D});
}

TEST(ImageAttributes, AnyCellCountsAndResultsAreLimited) {
    ColorMatrix matrix{};
    matrix[0][1] = 1;   // green from red
    matrix[2][0] = 2;   // red from twice the blue
    matrix[1][2] = -1;  // blue from the negative of green
    matrix[4][3] = 0.5F;
    EXPECT_EQ(ImageAttributes{matrix}.Apply(0x12345678), Argb{0x80F03400});
    matrix[2][0] = 3;
    EXPECT_EQ(ImageAttributes{matrix}.Apply(0x12345678), Argb{0x80FF3400});
    matrix[2][0] = std::numeric_limits<float>::quiet_NaN();
    matrix[0][1] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(ImageAttributes{matrix}.Apply(0x12345678), Argb{0x8000FF00});
    EXPECT_EQ(ImageAttributes{}.Apply(0x12345678), Argb{0x12345678});
}

}  // namespace
}  // namespace orbelle::graphics
