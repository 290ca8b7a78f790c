// The edge relief: darkens the edge of a picture and sets it off from what lies inside.
#pragma once

#include "filters/gloss_styles.h"
#include "graphics/bitmap.h"

namespace orbelle::filters {

// A page-sized picture (empty when no such bitmap can be made) at (0, 0): the image two pixels
// smaller, with its top left at (1, 1), and in it the relief. Pixels that have an alpha below 100
// around them are averaged darker; then those with an alpha below 150 around them move as far away
// from the brightest channel values around as they are, plus 5. Works in place, row by row, on what
// it has already rewritten. Alpha stays as drawn, and what lies outside the size of the image stays
// transparent black. Width and Height are those of `image`, not of the page.
StylePicture FreshStyle(const graphics::Bitmap& image, int pageWidth, int pageHeight);

}  // namespace orbelle::filters
