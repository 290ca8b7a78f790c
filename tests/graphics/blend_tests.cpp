#include "graphics/detail/blend.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "support/instruction_sets.h"

namespace orbelle::graphics {
namespace {

using std::uint64_t;
using testing::WithEachInstructionSet;

// The definition, word for word.
Argb Reference(Argb destination, Argb source) {
    const uint64_t a1 = AlphaOf(source), a0 = AlphaOf(destination);
    if (a1 == 0)
        return destination;
    const uint64_t r = 255 * a1 + a0 * (255 - a1);
    const auto mean = [&](uint64_t c1, uint64_t c0) {
        const uint64_t n = 255 * a1 * c1 + a0 * (255 - a1) * c0;
        return static_cast<unsigned>((2 * n + r) / (2 * r));
    };
    return MakeArgb(
        static_cast<unsigned>((2 * r + 255) / 510), mean(RedOf(source), RedOf(destination)),
        mean(GreenOf(source), GreenOf(destination)), mean(BlueOf(source), BlueOf(destination)));
}

TEST(Blend, GivesTheKnownResults) {
    const Argb cases[][3] = {
        {0x00FF8040, 0x10ABCDEF, 0x10ABCDEF}, {0xFF204060, 0x80C0A010, 0xFF707038},
        {0x80204060, 0x80C0A010, 0xC08B802B}, {0x40204060, 0x01C0A010, 0x4122415F},
        {0x01FFFFFF, 0x01000000, 0x027F7F7F}, {0x7F808080, 0x7F808080, 0xBF808080},
        {0x80204060, 0x00C0A010, 0x80204060}, {0x80204060, 0xFFC0A010, 0xFFC0A010}};
    for (const auto& [destination, source, result] : cases)
        EXPECT_EQ(BlendPixel(destination, source), result);
}

TEST(Blend, IsExactForEveryPairOfAlphas) {
    WithEachInstructionSet([] {
        std::mt19937 random(1);
        // Each destination alpha eight times, opaque ones alone, and a rest that fills no vector.
        constexpr std::size_t count = 3079, opaque = 2048;
        std::vector<Argb> source(count), destination(count + 1), blended;
        for (unsigned a1 = 0; a1 < 256; ++a1) {
            for (std::size_t i = 0; i < count; ++i) {
                source[i] = SetAlphaByte(static_cast<Argb>(random()), a1);
                destination[i] =
                    SetAlphaByte(static_cast<Argb>(random()), i < opaque ? i % 256 : 255);
            }
            blended = destination;
            BlendRow(blended.data(), source.data(), count);
            for (std::size_t i = 0; i < count; ++i) {
                const Argb expected = Reference(destination[i], source[i]);
                ASSERT_EQ(blended[i], expected) << std::hex << destination[i] << ' ' << source[i];
                ASSERT_EQ(BlendPixel(destination[i], source[i]), expected);
            }
            ASSERT_EQ(blended[count], Argb{0});
        }
    });
}

// A mean that ends in one half goes up; the nearest ones below it stay. With both alphas small
// there are the most of the first, with both large the second come closest.
TEST(Blend, DecidesTiesExactly) {
    WithEachInstructionSet([] {
        for (const unsigned a1 : {0u, 1u, 2u, 3u, 127u, 128u, 253u, 254u, 255u}) {
            for (const unsigned a0 : {1u, 2u, 85u, 128u, 254u, 255u}) {
                for (unsigned c1 = 0; c1 < 256; ++c1) {
                    std::vector<Argb> row(256);
                    for (unsigned c0 = 0; c0 < 256; ++c0)
                        row[c0] = MakeArgb(a0, c0, 255 - c0, c0 ^ 0x55);
                    const std::vector<Argb> before = row;
                    const Argb source = MakeArgb(a1, c1, c1, c1);
                    BlendColor(row.data(), source, 255);
                    for (std::size_t i = 0; i < 255; ++i)
                        ASSERT_EQ(row[i], Reference(before[i], source)) << std::hex << before[i];
                    ASSERT_EQ(row[255], before[255]);
                }
            }
        }
    });
}

// To the nearest of opacity times alpha.
TEST(Blend, TakesSourceAlphasThroughAFactor) {
    std::vector<float> opacities = {1e-30F, 1.0F / 512, 1.0F / 511, 0.00196F, 0.999999F, 1};
    for (const float tie : {0.5F, 0.25F, 0.625F, 9 / 256.0F})
        opacities.insert(opacities.end(),
                         {std::nextafter(tie, 0.0F), tie, std::nextafter(tie, 1.0F)});
    for (int percent = 0; percent < 100; ++percent)
        opacities.push_back(static_cast<float>(percent / 100.0));
    std::vector<Argb> source(1000);
    for (std::size_t i = 0; i < source.size(); ++i)
        source[i] = SetAlphaByte(0x00C0A010, i % 256);
    WithEachInstructionSet([&] {
        for (const float opacity : opacities) {
            const AlphaFactor factor(opacity);
            std::vector<Argb> row(1000, 0x80204060);
            const LayerRow layer{source.data(), &factor};
            BlendLayers(row.data(), {&layer, 1}, row.size());
            for (unsigned i = 0; i < row.size(); ++i) {
                const auto alpha = static_cast<unsigned>(double{opacity} * (i % 256) + 0.5);
                ASSERT_EQ(factor.Apply(i % 256), alpha) << opacity << " x " << i % 256;
                ASSERT_EQ(row[i], Reference(0x80204060, SetAlphaByte(source[i], alpha)))
                    << i << ", " << opacity;
            }
        }
    });
    EXPECT_EQ(AlphaFactor(-1).Apply(255), 0U);
    EXPECT_EQ(AlphaFactor(7).Apply(100), 100U);
    EXPECT_EQ(AlphaFactor(std::nanf("")).Apply(255), 0U);
}

// Among them some that hide all below and some with long stretches of nothing.
TEST(Blend, LayersAreBlendedOneAfterTheOther) {
    constexpr std::size_t kCount = 301;
    std::mt19937 random(1);
    for (std::size_t layerCount = 1; layerCount <= 9; ++layerCount) {
        std::vector<std::vector<Argb>> rows(layerCount, std::vector<Argb>(kCount));
        std::vector<AlphaFactor> factors;
        std::vector<LayerRow> layers;
        std::vector<Argb> destination(kCount);
        for (Argb& pixel : destination)
            pixel = random() % 4 == 0 ? 0 : random();
        std::vector<Argb> expected = destination;
        factors.reserve(layerCount);
        for (std::vector<Argb>& row : rows) {
            const unsigned kind = random() % 4;
            factors.emplace_back(static_cast<float>(random() % 101) / 100);
            const AlphaFactor* factor = random() % 2 == 0 ? &factors.back() : nullptr;
            for (std::size_t i = 0; i < kCount; ++i) {
                const unsigned stretch = (i / 40 + kind) % 3;
                row[i] = stretch == 0 ? random() : MakeArgb(stretch == 1 ? 0 : 255, i, kind, 7);
                const unsigned alpha = AlphaOf(row[i]);
                expected[i] = Reference(
                    expected[i], SetAlphaByte(row[i], factor ? factor->Apply(alpha) : alpha));
            }
            layers.push_back({row.data(), factor});
        }
        WithEachInstructionSet([&] {
            std::vector<Argb> blended = destination;
            BlendLayers(blended.data(), layers, kCount);
            ASSERT_EQ(blended, expected) << layerCount;
        });
    }
}

}  // namespace
}  // namespace orbelle::graphics
