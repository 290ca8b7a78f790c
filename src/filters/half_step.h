// A picture half a pixel further.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// The picture half a pixel further to the right or down, one pixel wider or higher: every pixel is
// the mean of the two that meet there, colours weighted by alpha; around the picture lies nothing.
// Counted from its far edge it is the picture half a pixel to the left or up. Channels are rounded
// to the nearest, ties to even; where no alpha is left the pixel is 0. Empty when `image` is, or
// when no bitmap has the new size.
graphics::Bitmap HalfStepAcross(const graphics::Bitmap& image);
graphics::Bitmap HalfStepDown(const graphics::Bitmap& image);

}  // namespace orbelle::filters
