// The pixels of usual PNG files, sooner than libpng reads them.
#pragma once

#include "graphics/bitmap.h"
#include "graphics/byte_source.h"

namespace orbelle::graphics {

// A picture of 8 bits a channel, from top to bottom, RGB or RGBA, without a transparent colour.
struct PlainPng {
    std::size_t Width = 0;
    std::size_t Height = 0;
    bool HasAlpha = true;
};

// Fills Width x Height pixels. False when anything about the file's pixels is wrong, strange or
// large: then they hold anything, and libpng is to say what it makes of them. What stands before
// them has been read.
bool ReadPlainPixels(const ByteSource& file, const PlainPng& picture, Argb* pixels);

}  // namespace orbelle::graphics
