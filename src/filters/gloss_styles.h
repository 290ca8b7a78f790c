// The looks that put gloss on a flat picture.
#pragma once

#include <optional>

#include "graphics/bitmap.h"
#include "graphics/path.h"

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

// Which half of the body OrigamiStyle leaves: the upper one or the left one.
enum class Fold { Vertical = 0, Horizontal = 1 };

// A fold: a faint gradient from color2 (top or left) to color1 on one half of the picture's body.
// None without a body.
std::optional<StylePicture> OrigamiStyle(const graphics::Bitmap& image, Fold fold,
                                         graphics::Argb color1, graphics::Argb color2);

struct Plate {
    graphics::Bitmap Image;
    graphics::Path Path;
};

// A rounded plate of width x height pixels in a colour, its outline from (x, y) on. No picture for
// a size that no bitmap has.
Plate IosStyle(graphics::Argb color, int width, int height, float x, float y);

}  // namespace orbelle::filters
