#include "graphics/image_attributes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "graphics/detail/recoloring.h"
#include "graphics/geometry.h"
#include "support/instruction_sets.h"

namespace orbelle::graphics {
namespace {

TEST(ImageAttributes, RecolorEachPixel) {
    const ImageAttributes half{.Matrix = OpacityMatrix(0.5F)};
    const ImageAttributes root{.Gamma = 0.5F};
    ImageAttributes halfRed = half;
    (*halfRed.Matrix)[0][0] = 0.5F;
    halfRed.Gamma = 0.5F;
    ColorMatrix hostile{};
    hostile[2][0] = std::nanf("");
    hostile[0][1] = INFINITY;
    const struct {
        ImageAttributes Attributes;
        Argb Color, Recolored;
    } cases[] = {
        {{}, 0x12345678, 0x12345678},
        {half, 0xFF102030, 0x80102030},
        {half, 0x01102030, 0x01102030},
        {{.Matrix = OpacityMatrix(0)}, 0xFF102030, 0x00102030},
        {{.Matrix = OpacityMatrix(1)}, 0x7F102030, 0x7F102030},
        // 0.9F lies just below 0.9, so 135 lies below 121.5; 0.3F just above 0.3.
        {{.Matrix = OpacityMatrix(0.9F)}, 135u << 24, 121u << 24},
        {{.Matrix = OpacityMatrix(0.3F)}, 5u << 24, 2u << 24},
        {{.Matrix = hostile}, 0x12345678, 0x0000FF00},
        {root, 0x40014080, 0x401080B5},
        {root, 0x0000FF01, 0x0000FF10},
        {{.Gamma = 0.65F}, 0xFF000A80, 0xFF001FA3},
        // Above 1 darkens: 255 (128 / 255)^2 = 64.25, 255 (10 / 255)^2 = 0.39.
        {{.Gamma = 2.0F}, 0xFFFF800A, 0xFFFF4000},
        {{.Gamma = -1.0F}, 0x7F00FF01, 0x7FFFFFFF},
        // The matrix first: half of 3 is 1.5, and 255 sqrt(2 / 255) is 22.6.
        {halfRed, 0xFF034080, 0x801780B5},
    };
    for (auto [attributes, color, recolored] : cases) {
        Recoloring(attributes).Apply({&color, 1});
        EXPECT_EQ(color, recolored) << std::hex << color << ' ' << recolored;
    }
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

}  // namespace
}  // namespace orbelle::graphics
