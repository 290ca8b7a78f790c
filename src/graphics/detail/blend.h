// Source-over on straight alpha, exact to the last unit.
//
// With source (C, A) and destination (c, a): R = 255 A + a (255 - A); alpha = (2 R + 255) div 510;
// colour = (2 N + R) div 2 R with N = 255 A C + a (255 - A) c. A = 0 leaves the destination as it
// is, colour under alpha 0 included; a = 0 gives the source.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "graphics/color.h"

namespace orbelle::graphics {

Argb BlendPixel(Argb destination, Argb source);

// Blends `count` source pixels over as many destination pixels.
void BlendRow(Argb* destination, const Argb* source, std::size_t count);

// An opacity made ready for many alphas. Apply is floor(opacity x alpha + 0.5), exact for the value
// of the float, in whole numbers; opacities outside 0 to 1 are brought to the nearer end.
class AlphaFactor {
public:
    explicit AlphaFactor(float opacity);

    // alpha is 0 to 255.
    unsigned Apply(unsigned alpha) const {
        return ((alpha * Multiplier >> 1) + (1U << (Shift - 1))) >> Shift;
    }

    std::uint32_t Multiplier = 0;  // below 2^24
    int Shift = 1;                 // opacity = Multiplier / 2^(Shift + 1)
    // The opacity, or where it makes a product end in one half, the next number above: its products
    // rounded to the nearest are those of Apply.
    float Opacity = 0;
};

// Pixels to be blended; each alpha is first taken through the factor if there is one.
struct LayerRow {
    const Argb* Pixels;
    const AlphaFactor* Factor;
};

// Blends `count` pixels of each row over as many destination pixels, one row after the other.
void BlendLayers(Argb* destination, std::span<const LayerRow> layers, std::size_t count);

// Blends one colour over `count` pixels.
void BlendColor(Argb* destination, Argb color, std::size_t count);

}  // namespace orbelle::graphics
