#include "graphics/image_attributes.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "graphics/detail/recoloring.h"
#include "graphics/geometry.h"
#include "support/instruction_sets.h"

namespace orbelle::graphics {
namespace {

Argb Recolored(const ImageAttributes& attributes, Argb color) {
    Recoloring(attributes).Apply({&color, 1});
    return color;
}

TEST(ImageAttributes, OpacityRoundsHalvesUpAndKeepsTheColor) {
    const ImageAttributes half{.Matrix = OpacityMatrix(0.5F)};
    EXPECT_EQ(Recolored(half, 0xFF102030), Argb{0x80102030});
    EXPECT_EQ(Recolored(half, 0x01102030), Argb{0x01102030});
    EXPECT_EQ(Recolored(half, 0x00102030), Argb{0x00102030});
    EXPECT_EQ(Recolored({.Matrix = OpacityMatrix(0)}, 0xFF102030), Argb{0x00102030});
    EXPECT_EQ(Recolored({.Matrix = OpacityMatrix(1)}, 0x7F102030), Argb{0x7F102030});
    // 0.9F lies just below 0.9, so 135 lies below 121.5; 0.3F just above 0.3, so 5 above 1.5.
    EXPECT_EQ(Recolored({.Matrix = OpacityMatrix(0.9F)}, 135u << 24), Argb{121u << 24});
    EXPECT_EQ(Recolored({.Matrix = OpacityMatrix(0.3F)}, 5u << 24), Argb{2u << 24});
}

TEST(ImageAttributes, AnyCellCountsAndResultsAreLimited) {
    ColorMatrix matrix{};
    matrix[0][1] = 1;   // green from red
    matrix[2][0] = 2;   // red from twice the blue
    matrix[1][2] = -1;  // blue from the negative of green
    matrix[4][3] = 0.5F;
    EXPECT_EQ(Recolored({.Matrix = matrix}, 0x12345678), Argb{0x80F03400});
    matrix[2][0] = 3;
    EXPECT_EQ(Recolored({.Matrix = matrix}, 0x12345678), Argb{0x80FF3400});
    matrix[2][0] = std::numeric_limits<float>::quiet_NaN();
    matrix[0][1] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Recolored({.Matrix = matrix}, 0x12345678), Argb{0x8000FF00});
    EXPECT_EQ(Recolored({}, 0x12345678), Argb{0x12345678});
}

TEST(ImageAttributes, EveryPixelOfARunIsTheRoundedSumOfItsCells) {
    std::mt19937 random(1);
    std::uniform_real_distribution<float> cell(-1, 1.5F);
    for (const std::size_t count : {1, 7, 64, 1003}) {
        ColorMatrix matrix;
        for (auto& row : matrix) {
            for (float& value : row)
                value = cell(random);
        }
        std::vector<Argb> pixels(count), expected;
        for (Argb& pixel : pixels) {
            pixel = static_cast<Argb>(random());
            const unsigned old[5] = {RedOf(pixel), GreenOf(pixel), BlueOf(pixel), AlphaOf(pixel),
                                     255};
            const auto channel = [&](int column) {
                double sum = 0;
                for (int row = 0; row < 5; ++row)
                    sum += old[row] * double{matrix[row][column]};
                return static_cast<unsigned>(std::clamp(RoundHalfUp(sum), 0, 255));
            };
            expected.push_back(MakeArgb(channel(3), channel(0), channel(1), channel(2)));
        }
        testing::WithEachInstructionSet([&] {
            std::vector<Argb> recolored = pixels;
            Recoloring({.Matrix = matrix}).Apply(recolored);
            EXPECT_EQ(recolored, expected);
        });
    }
}

TEST(ImageAttributes, GammaRaisesColorsAndKeepsAlpha) {
    const ImageAttributes half{.Gamma = 0.5F};
    EXPECT_EQ(Recolored(half, 0x40014080), Argb{0x401080B5});
    EXPECT_EQ(Recolored(half, 0x0000FF01), Argb{0x0000FF10});
    EXPECT_EQ(Recolored({.Gamma = 0.65F}, 0xFF000A80), Argb{0xFF001FA3});
    // Above 1 darkens: 255 (128 / 255)^2 = 64.25, 255 (10 / 255)^2 = 0.39.
    EXPECT_EQ(Recolored({.Gamma = 2.0F}, 0xFFFF800A), Argb{0xFFFF4000});
    // No power is harmful: 0 to the power of -1 has no limit.
    EXPECT_EQ(Recolored({.Gamma = -1.0F}, 0x7F00FF01), Argb{0x7FFFFFFF});
}

TEST(ImageAttributes, TheMatrixComesBeforeTheGamma) {
    // Half of 3 is 1.5, and 255 sqrt(2 / 255) is 22.6; the other way it would be 14.
    ColorMatrix half = OpacityMatrix(0.5F);
    half[0][0] = 0.5F;
    EXPECT_EQ(Recolored({.Matrix = half, .Gamma = 0.5F}, 0xFF034080), Argb{0x801780B5});
}

}  // namespace
}  // namespace orbelle::graphics
