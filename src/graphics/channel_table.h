// Colour changes in which each channel depends on itself alone.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "graphics/color.h"

namespace orbelle::graphics {

// The new value of each old one.
using ChannelTable = std::array<std::uint8_t, 256>;

// Takes red, green and blue through the table; alpha stays.
void ApplyToColors(const ChannelTable& table, std::span<Argb> pixels);

// floor(255 (c / 255)^gamma + 0.5), limited to 0..255: below 1 lightens.
ChannelTable GammaTable(float gamma);

}  // namespace orbelle::graphics
