// Softening of the stair steps that a style has cut into a picture.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Fills the notches of nearly horizontal edges with linear alpha ramps in the colour of the pixel
// at the notch's end; opaque pixels stay. Looks at the rows above and below a pixel, not at
// columns.
void AntialiasEdge(graphics::Bitmap& image);

}  // namespace orbelle::filters
