// The colours between the two ends of a gradient.
#pragma once

#include "graphics/color.h"

namespace orbelle::graphics {

// Color1 at t = 0, color2 at t = 1 (t lies between), straight colours interpolated premultiplied in
// real numbers and rounded to nearest once. Alpha 0 comes out as 0.
inline Argb MixPremultiplied(Argb color1, Argb color2, double t) {
    const double weight1 = (1 - t) * AlphaOf(color1);
    const double weight2 = t * AlphaOf(color2);
    const double alpha = weight1 + weight2;
    if (alpha <= 0)
        return 0;
    const auto mix = [&](unsigned channel1, unsigned channel2) {
        return static_cast<unsigned>((weight1 * channel1 + weight2 * channel2) / alpha + 0.5);
    };
    return MakeArgb(static_cast<unsigned>(alpha + 0.5), mix(RedOf(color1), RedOf(color2)),
                    mix(GreenOf(color1), GreenOf(color2)), mix(BlueOf(color1), BlueOf(color2)));
}

}  // namespace orbelle::graphics
