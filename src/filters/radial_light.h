// A soft light from a point near the top left of a picture's body.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Where a light was put: the corner that it starts from and its reach, in picture pixels.
struct RadialLight {
    int X = 0;
    int Y = 0;
    int Radius = 0;
    bool operator==(const RadialLight&) const = default;
};

// Strengths in use: the Mac style's, and that of Vista and Irradiation.
inline constexpr int kGentleLight = 3;
inline constexpr int kStrongLight = 5;

// Adds up to 5 x `level` to red, green and blue, most at a third of the radius right of and below
// the top left corner of the body (the pixels of kSolidAlpha and above, as CreateRegion finds
// them), falling to nothing at the radius, the body's larger side; rounded, ties to even. Alpha
// stays; transparent pixels change too. A picture without a body stays as it is and gives zeros.
RadialLight ThreeDStyle(graphics::Bitmap& image, int level);

}  // namespace orbelle::filters
