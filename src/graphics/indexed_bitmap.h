// A picture of at most 256 colours.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::graphics {

// Indexes has Width x Height entries, top row first, rows exactly Width apart. All palette entries
// count, those that no pixel uses too.
struct IndexedBitmap {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint8_t> Indexes;
    std::array<Argb, 256> Palette = {};

    // The palette entry of each pixel, alpha included.
    Bitmap ToBitmap() const;
};

}  // namespace orbelle::graphics
