// Source-over on straight alpha, exact to the last unit.
//
// With source (C, A) and destination (c, a): R = 255 A + a (255 - A); alpha = (2 R + 255) div 510;
// colour = (2 N + R) div 2 R with N = 255 A C + a (255 - A) c. A = 0 leaves the destination as it
// is, colour under alpha 0 included; a = 0 gives the source.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "graphics/color.h"

namespace orbelle::graphics {

Argb BlendPixel(Argb destination, Argb source);

// Blends `count` source pixels over as many destination pixels.
void BlendRow(Argb* destination, const Argb* source, std::size_t count);

// The same with each source alpha first taken through `alphaTable`.
void BlendRow(Argb* destination, const Argb* source, std::size_t count,
              const std::array<std::uint8_t, 256>& alphaTable);

// Blends one colour over `count` pixels.
void BlendColor(Argb* destination, Argb color, std::size_t count);

}  // namespace orbelle::graphics
