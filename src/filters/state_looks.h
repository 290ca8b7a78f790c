// The looks of a button's states: disabled and hot.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Both replace the picture by a new one of width x height, drawn pixel for pixel from the top left:
// what the old one lacks is transparent, and colours under alpha 0 are lost. A size that no bitmap
// can have leaves the picture as it was, and an empty picture stays empty.

// Red, green and blue become 0.3 (R + G + B): grey, and a tenth darker than the average.
void DisabledStyle(graphics::Bitmap& image, int width, int height);

// Red, green and blue, on a scale of 0 to 1, to the power `gamma`: below 1 lightens.
void HotStyle(graphics::Bitmap& image, int width, int height, float gamma);

}  // namespace orbelle::filters
