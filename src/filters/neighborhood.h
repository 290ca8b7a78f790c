// The largest channel values around a pixel, for the filters that emphasise edges.
#pragma once

#include <algorithm>
#include <cstddef>

#include "graphics/color.h"

namespace orbelle::filters {

// The largest blue, green and red of a block of pixels whose rows are `stride` pixels apart, as a
// colour of alpha 0.
inline graphics::Argb LargestChannels(const graphics::Argb* topLeft, std::size_t stride,
                                      int columns, int rows) {
    graphics::Argb red = 0, green = 0, blue = 0;
    for (int y = 0; y < rows; ++y, topLeft += stride) {
        for (int x = 0; x < columns; ++x) {
            red = std::max(red, topLeft[x] & 0x00FF0000);
            green = std::max(green, topLeft[x] & 0x0000FF00);
            blue = std::max(blue, topLeft[x] & 0x000000FF);
        }
    }
    return red | green | blue;
}

}  // namespace orbelle::filters
