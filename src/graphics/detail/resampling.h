// The two passes of smooth scaling: rows of the source are added up into one row of premultiplied
// sums, and its columns into pixels. Nothing is rounded in between.
#pragma once

#include <span>

#include "graphics/color.h"
#include "graphics/detail/sampling.h"

namespace orbelle::graphics {

// The sum over the rows of weight x alpha x (blue, green, red, 255) of each pixel, so that a colour
// over the fourth number is the straight colour: blue, green, red and alpha (in 1 / 255) of `width`
// pixels. Row i starts `stride` pixels after row i - 1.
void AddUpRows(const Argb* pixels, std::size_t stride, std::span<const float> weights,
               std::size_t width, float* sums);

// Adds up the columns of such a row, whose first pixel is the source's column `firstColumn`, and
// gives straight pixels: alpha limited to 0..255, premultiplied colour to 0..alpha.
void AddUpColumns(const float* sums, int firstColumn, std::span<const Taps> taps,
                  const float* weights, Argb* pixels);

}  // namespace orbelle::graphics
