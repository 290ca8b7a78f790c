// The looks that put gloss on a flat picture.
#pragma once

#include <optional>

#include "graphics/bitmap.h"

namespace orbelle::filters {

// What a style has drawn, with its place and size in the source picture's pixels.
struct StylePicture {
    graphics::Bitmap Image;
    float X = 0;
    float Y = 0;
    int Width = 0;
    int Height = 0;
};

// A white gloss over the upper part of the picture's body, cut by a big ellipse. None when the
// picture has no body (no pixel of kSolidAlpha and above).
std::optional<StylePicture> CrystalStyle(const graphics::Bitmap& image);

}  // namespace orbelle::filters
