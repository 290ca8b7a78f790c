// The round shape of a light or a brush whose strength falls from its centre to its rim.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "graphics/bitmap.h"

namespace orbelle::filters {

// A square of side 2 radius around (X, Y), and in it the pixels less than `Radius` away from
// (CenterX, CenterY), in picture coordinates. They may lie anywhere, each within the range of int.
struct Falloff {
    std::int64_t X = 0;
    std::int64_t Y = 0;
    std::int64_t CenterX = 0;
    std::int64_t CenterY = 0;
    std::int64_t Radius = 0;

    // Calls change(pixel, strength) for every such pixel inside the picture: strength is 1 in the
    // centre and falls evenly towards 0 at the radius. A picture one pixel wide or high is left
    // alone (docs/oddities.md, "One pixel wide").
    template <class Change>
    void Apply(graphics::Bitmap& image, Change change) const {
        const std::int64_t left = std::max<std::int64_t>(X - Radius, 0);
        const std::int64_t top = std::max<std::int64_t>(Y - Radius, 0);
        const std::int64_t right = std::min<std::int64_t>(X + Radius, image.Width() - 1);
        const std::int64_t bottom = std::min<std::int64_t>(Y + Radius, image.Height() - 1);
        if (left >= right || top >= bottom)
            return;
        const double radius = static_cast<double>(Radius);
        for (std::int64_t y = top; y <= bottom; ++y) {
            graphics::Argb* row = image.MutableRow(static_cast<int>(y));
            const std::int64_t squareY = (y - CenterY) * (y - CenterY);
            for (std::int64_t x = left; x <= right; ++x) {
                const std::int64_t square = (x - CenterX) * (x - CenterX) + squareY;
                if (square < Radius * Radius)
                    change(row[x], 1 - std::sqrt(static_cast<double>(square)) / radius);
            }
        }
    }
};

}  // namespace orbelle::filters
