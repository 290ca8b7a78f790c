#include "filters/color_adjustments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>

#include "support/instruction_sets.h"
#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;
using graphics::Bitmap;

template <class Change>
Argb Changed(Argb color, Change change) {
    Bitmap picture = testing::FilledPicture(1, 1, color), empty;
    change(picture);
    change(empty);
    EXPECT_TRUE(empty.IsEmpty());
    return *picture.GetPixel(0, 0);
}

// Every value of red with every sum of green and blue, shared out in many ways; all alphas.
Bitmap EveryRedAndSum() {
    Bitmap picture(511, 256);
    for (int red = 0; red < 256; ++red) {
        for (int rest = 0; rest < 511; ++rest) {
            const int least = std::max(rest - 255, 0);
            const int green = least + (rest * 37 + red * 11) % (rest - 2 * least + 1);
            picture.SetPixel(rest, red,
                             graphics::MakeArgb((rest * 7 + red) & 0xFF, red, green, rest - green));
        }
    }
    return picture;
}

template <class Rule>
Bitmap PixelByPixel(Bitmap picture, Rule rule) {
    Argb* pixels = picture.MutablePixels();
    std::transform(pixels, picture.MutableRow(picture.Height()), pixels, rule);
    return picture;
}

TEST(ColorAdjustments, HueExchangesAndMixesInSevenSectors) {
    constexpr Argb kColor = 0x80C86428;  // red 200, green 100, blue 40
    const struct {
        float Hue;
        Argb Color, Expected;
    } cases[] = {
        {0, kColor, kColor},
        {75, kColor, 0x80C728C8},   // 1.5 rounds to sector 2; t -128, red mixed with itself
        {225, kColor, 0x80282877},  // 4.5 rounds to sector 4; t 128
        {267, kColor, 0x805DC828},  // t 17 x 5.11 = 86.87, with 5.12 it would be 87
        {275, kColor, 0x80C8F928},  // 5.5 rounds to sector 6; t -128
        {325, kColor, 0x80C89528},  // t 127.75 rounded down
        {350, kColor, kColor},      // sector 6; t 255
        {400, kColor, kColor},
        {-1, kColor, kColor},
        {NAN, kColor, kColor},
        // A mix that fits no byte is not stored.
        {275, 0x12FF0007, 0x12FFFF07},  // 381
        {275, 0x000AC807, 0x000A0A07},  // -85
        {275, 0xFF42C807, 0xFF424207},  // -322 / 256 is -1
        {275, 0xFF43C907, 0xFF430007},  // -67 / 256 is 0
    };
    for (const auto& test : cases)
        EXPECT_EQ(Changed(test.Color, [&](Bitmap& p) { HueColor(p, test.Hue); }), test.Expected)
            << test.Hue;
}

// The channels exchanged in each sector, and the two that are mixed into the third.
Argb HuedStepByStep(Argb color, int s, int t) {
    const int r = graphics::RedOf(color), g = graphics::GreenOf(color);
    const int b = graphics::BlueOf(color);
    const struct {
        int Exchanged[3];  // red, green, blue
        int Mixed, First, Second;
    } sectors[] = {{{r, g, b}, 1, g, b}, {{r, b, b}, 2, b, r}, {{r, b, r}, 0, r, r},
                   {{b, r, r}, 1, r, b}, {{b, b, r}, 2, r, b}, {{b, r, b}, 0, b, r},
                   {{r, r, b}, 1, r, g}};
    auto [channels, mixed, first, second] = sectors[s];
    const int mix = t == 0 ? first : t == 255 ? second : ((255 - t) * first + t * second) / 256;
    if (mix >= 0 && mix <= 255)
        channels[mixed] = mix;
    return graphics::MakeArgb(graphics::AlphaOf(color), channels[0], channels[1], channels[2]);
}

TEST(ColorAdjustments, EverySliderHueFollowsItsStatements) {
    const Bitmap picture = EveryRedAndSum();
    for (int position = 0; position <= 100; ++position) {
        const double hue = std::nearbyint(position * 3.5);
        const int s = std::min(static_cast<int>(std::nearbyint(hue / 50)), 6);
        const int t = static_cast<int>(std::floor((hue - 50 * s) * (s < 5 ? 5.12 : 5.11)));
        const Bitmap expected =
            PixelByPixel(picture, [&](Argb c) { return HuedStepByStep(c, s, t); });
        testing::WithEachInstructionSet([&] {
            Bitmap hued = picture;
            HueColor(hued, static_cast<float>(hue));
            EXPECT_TRUE(testing::SamePixels(hued, expected)) << hue;
        });
    }
}

TEST(ColorAdjustments, SaturationPullsToTheAverageAndPushesAway) {
    const struct {
        Argb Color;
        int Level;
        Argb Expected;
    } cases[] = {
        {0x001F140A, -100, 0x00141414},  // 61 / 3 is 20
        {0x80C86428, 0, 0x80C86428},
        {0x80C86428, -25, 0x80B2673A},  // 113: 200 - 21.75, 100 + 3.25, 40 + 18.25
        {0x80C86428, 150, 0x80FF5000},  // beyond both ends, and 80.5
        {0xFF1F140A, 50, 0xFF241405},   // 36.5 to the even 36
        {0xFF211409, 50, 0xFF281404},   // 39.5 to the even 40, 3.5 to 4
        {0xFF1D4243, 110, 0xFF014F51},  // 29 + 1.1 x -25: in doubles a little below 1.5
        {0x80C86428, INT_MAX, 0x80FF0000},
        {0x80C86428, INT_MIN, 0x8000FFFF},
    };
    for (const auto& test : cases)
        EXPECT_EQ(Changed(test.Color, [&](Bitmap& p) { SaturationColor(p, test.Level); }),
                  test.Expected)
            << std::hex << test.Color << ' ' << test.Level;
}

TEST(ColorAdjustments, SaturationIsThatOfDoublesAtEverySliderPosition) {
    const Bitmap picture = EveryRedAndSum();
    for (int position = 0; position <= 100; ++position) {
        const int level = static_cast<int>(
            std::nearbyint(position < 40 ? (position - 40) * 2.5 : position * 2.5 - 100));
        const double k = level / 100.0;
        const Bitmap expected = PixelByPixel(picture, [k](Argb color) {
            const int r = graphics::RedOf(color), g = graphics::GreenOf(color);
            const int b = graphics::BlueOf(color);
            const auto pushed = [&](int c) {
                const double value = std::nearbyint(c + k * (c - (r + g + b) / 3));
                return static_cast<unsigned>(std::clamp(value, 0.0, 255.0));
            };
            return graphics::MakeArgb(graphics::AlphaOf(color), pushed(r), pushed(g), pushed(b));
        });
        testing::WithEachInstructionSet([&] {
            Bitmap saturated = picture;
            SaturationColor(saturated, level);
            EXPECT_TRUE(testing::SamePixels(saturated, expected)) << level;
        });
    }
}

TEST(ColorAdjustments, BrightnessStretchesAroundTheMiddleAndThenMoves) {
    const struct {
        Argb Color;
        double Contrast, Brightness;
        Argb Expected;
    } cases[] = {
        {0x80C86428, 1, 0, 0x80C86428},    {0x00FF0080, 0.2, 0, 0x00996680},  // 153.4, 102.4, 128
        {0xFF818380, 1.5, 0, 0xFF828480},   // 129.5 to 130, 132.5 to 132
        {0x40050600, 1, 250, 0x40FFFFFA},   // 255, 256 limited, 250
        {0x40FAF9FB, 1, -250, 0x40000001},  // 0, -1 limited, 1
        {0xFF659A80, 5, 10, 0xFF03FF8A},    // 3, 268 limited, 138
    };
    for (const auto& test : cases)
        EXPECT_EQ(Changed(test.Color,
                          [&](Bitmap& p) { BrightnessColor(p, test.Contrast, test.Brightness); }),
                  test.Expected)
            << std::hex << test.Color;
}

}  // namespace
}  // namespace orbelle::filters
