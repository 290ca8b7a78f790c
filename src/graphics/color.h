// Colours as 32-bit values: alpha in the top byte, then red, green, blue. In memory, on the
// little-endian machines we build for, that is the byte order blue, green, red, alpha.
#pragma once

#include <cstdint>

namespace orbelle::graphics {

using Argb = std::uint32_t;

// Packs four channels, each 0 to 255.
constexpr Argb MakeArgb(unsigned alpha, unsigned red, unsigned green, unsigned blue) {
    return alpha << 24 | red << 16 | green << 8 | blue;
}

constexpr unsigned AlphaOf(Argb color) {
    return color >> 24;
}
constexpr unsigned RedOf(Argb color) {
    return color >> 16 & 0xFF;
}
constexpr unsigned GreenOf(Argb color) {
    return color >> 8 & 0xFF;
}
constexpr unsigned BlueOf(Argb color) {
    return color & 0xFF;
}

// The colour with its alpha replaced.
constexpr Argb SetAlphaByte(Argb color, unsigned alpha) {
    return (color & 0x00FFFFFF) | alpha << 24;
}

}  // namespace orbelle::graphics
