#include "graphics/indexed_bitmap.h"

#include <algorithm>

namespace orbelle::graphics {

Bitmap IndexedBitmap::ToBitmap() const {
    Bitmap image(Width, Height);
    if (!image.IsEmpty()) {
        std::ranges::transform(Indexes, image.MutablePixels(),
                               [this](std::uint8_t index) { return Palette[index]; });
    }
    return image;
}

}  // namespace orbelle::graphics
