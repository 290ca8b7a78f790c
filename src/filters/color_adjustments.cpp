#include "filters/color_adjustments.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "filters/color_rows.h"
#include "graphics/channel_table.h"
#include "graphics/geometry.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;

std::span<Argb> PixelsOf(graphics::Bitmap& image) {
    return {image.MutablePixels(), static_cast<std::size_t>(image.Width()) * image.Height()};
}

// Of the first colour and of the second, which is mixed in by t of 255 (-255 to 255). The ends take
// one colour whole; between them the two make up 255 of 256 (docs/oddities.md, "255 of 256").
MixWeights WeightsOf(int t) {
    if (t == 0)
        return {256, 0};
    if (t == 255)
        return {0, 256};
    return {255 - t, t};
}

constexpr std::uint8_t kBlue = 0, kGreen = 1, kRed = 2;

// What becomes blue, green and red in each sector, which of them is mixed, and with what.
constexpr std::array<ChannelMix, 7> kSectors = {{
    {{kBlue, kGreen, kRed}, kGreen, kBlue},
    {{kBlue, kBlue, kRed}, kBlue, kRed},
    {{kRed, kBlue, kRed}, kRed, kRed},
    {{kRed, kRed, kBlue}, kGreen, kBlue},
    {{kRed, kBlue, kBlue}, kBlue, kBlue},
    {{kBlue, kRed, kBlue}, kRed, kRed},
    {{kBlue, kRed, kRed}, kGreen, kGreen},
}};

}  // namespace

void HueColor(graphics::Bitmap& image, float hue) {
    const double limited = hue > 0 ? std::min(double{hue}, 350.0) : 0;  // not-a-number too is 0
    const int sector = std::min(graphics::RoundToEven(limited / 50), 6);
    const double scale = sector < 5 ? 5.12 : 5.11;
    const int t = static_cast<int>(std::floor((limited - 50 * sector) * scale));
    MixChannels(PixelsOf(image), kSectors[sector], WeightsOf(t));
}

void SaturationColor(graphics::Bitmap& image, int level) {
    PushFromGrey(PixelsOf(image), level / 100.0);
}

void BrightnessColor(graphics::Bitmap& image, double contrast, double brightness) {
    graphics::ChannelTable table;
    for (int c = 0; c < 256; ++c) {
        const double value = (c - 128) * contrast + 128 + brightness;
        table[c] = static_cast<std::uint8_t>(std::clamp(graphics::RoundToEven(value), 0, 255));
    }
    graphics::ApplyToColors(table, PixelsOf(image));
}

}  // namespace orbelle::filters
