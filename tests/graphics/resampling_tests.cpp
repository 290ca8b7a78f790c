#include "graphics/detail/resampling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/instruction_sets.h"

namespace orbelle::graphics {
namespace {

using testing::WithEachInstructionSet;

std::vector<float> RandomWeights(std::mt19937& random, std::size_t count) {
    std::uniform_real_distribution<float> weight(-0.2F, 1);
    std::vector<float> weights(count);
    std::ranges::generate(weights, [&] { return weight(random); });
    return weights;
}

TEST(Resampling, RowsAddUpAlikeWithEveryInstructionSet) {
    constexpr std::size_t kStride = 80;
    std::mt19937 random(1);
    for (const std::size_t width : {1, 2, 3, 7, 16, 61}) {
        const std::vector<float> weights = RandomWeights(random, width % 5 + 1);
        std::vector<Argb> pixels(kStride * weights.size());
        std::ranges::generate(pixels, random);
        std::vector<float> expected(4 * width);
        for (std::size_t row = 0; row < weights.size(); ++row) {
            for (std::size_t x = 0; x < width; ++x) {
                const Argb color = pixels[row * kStride + x];
                const float share = static_cast<float>(AlphaOf(color)) * weights[row];
                expected[4 * x] += share * static_cast<float>(BlueOf(color));
                expected[4 * x + 1] += share * static_cast<float>(GreenOf(color));
                expected[4 * x + 2] += share * static_cast<float>(RedOf(color));
                expected[4 * x + 3] += share;
            }
        }
        WithEachInstructionSet([&] {
            std::vector<float> sums(4 * width, -1);
            AddUpRows(pixels.data(), kStride, weights, width, sums.data());
            EXPECT_EQ(sums, expected) << width;
        });
    }
}

TEST(Resampling, ColumnsAddUpToLimitedStraightPixels) {
    // Two columns: premultiplied blue, green and red, and alpha.
    const std::vector<float> sums = {100 * 10.0F, 100 * 20.0F, 100 * 30.0F, 100,
                                     200 * 40.0F, 200 * 50.0F, 200 * 60.0F, 200};
    const std::vector<float> weights = {1, 0.5F, 0.25F, 1, 1, -0.5F, 0.5F, 0.004F};
    const struct {
        Taps Columns;
        Argb Pixel;
    } cases[] = {
        {{7, 1, 0}, MakeArgb(100, 30, 20, 10)},
        {{8, 1, 1}, MakeArgb(100, 60, 50, 40)},
        {{7, 2, 1}, MakeArgb(100, 45, 35, 25)},
        {{7, 2, 3}, MakeArgb(255, 59, 47, 35)},  // alpha 300 is cut, and 15000 / 255 = 58.8
        {{7, 2, 5}, MakeArgb(50, 90, 80, 70)},
        {{7, 1, 5}, 0},  // negative
        {{7, 1, 7}, 0},  // alpha 0.4
        {{7, 0, 0}, 0},
    };
    for (const auto& [taps, pixel] : cases) {
        WithEachInstructionSet([&] {
            Argb drawn = 1;
            AddUpColumns(sums.data(), 7, {&taps, 1}, weights.data(), &drawn);
            EXPECT_EQ(drawn, pixel) << taps.First << ", " << taps.Count << ", " << taps.Weights;
        });
    }
}

}  // namespace
}  // namespace orbelle::graphics
