// A picture's shape as light or shadow.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

struct ReflectionPicture {
    graphics::Bitmap Image;
    int Margin = 0;  // rows without a solid pixel below the picture's solid part
};

// The picture fading out toward its top: alpha x y \ height in row y. It is not yet turned over.
ReflectionPicture Reflection(const graphics::Bitmap& image);

// The picture's shape in black, with the same fade.
graphics::Bitmap GradientBlack(const graphics::Bitmap& image);

// The picture's alpha, blurred over squares of 2 x radius + 1 pixels, in black; `radius` (0 and up)
// pixels larger on every side, while the shape keeps its place at the top left. The centre of a
// square counts twice (docs/oddities.md, "Heavy centres"). Empty for a size that no bitmap has.
graphics::Bitmap Shadow(const graphics::Bitmap& image, int radius);

}  // namespace orbelle::filters
