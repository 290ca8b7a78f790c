// What the size that a picture file declares is checked against before memory is taken.
#pragma once

#include <cstdint>

#include "graphics/bitmap.h"

namespace orbelle::graphics {

// How many pixels may still be decoded. Pictures that turn out to be damaged count, too: they took
// their time.
struct PixelBudget {
    std::int64_t Left = kMaxBitmapPixels;

    // Throws an ImageError that names the size when no bitmap can have it or too little is left.
    void Take(std::int64_t width, std::int64_t height);
};

// Throws an ImageError that names the declared size unless a bitmap can have it.
void CheckDeclaredSize(std::int64_t width, std::int64_t height);

}  // namespace orbelle::graphics
