// The visible pixels of a picture, a bit each: for those that are too ragged for rectangles.
#pragma once

#include <cstdint>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/geometry.h"

namespace orbelle::graphics {

// A thirty-second of the picture's memory, whatever it shows.
class PixelMask {
public:
    // The pixels of alpha `level` (1 to 255) and above, with the picture's corner at (x, y).
    PixelMask(const Bitmap& image, int level, int x, int y);

    bool Contains(std::int64_t x, std::int64_t y) const;
    // All zero when there is none.
    RectI Bounds() const { return bounds_; }
    // A rectangle for each run of pixels in a row, by y and then x.
    std::vector<RectI> Rects() const;

private:
    bool Has(int column, int row) const {
        return words_[static_cast<std::size_t>(row) * wordsPerRow_ + column / 64] >> column % 64 &
               1;
    }

    RectI box_;
    RectI bounds_;
    std::size_t wordsPerRow_;
    std::vector<std::uint64_t> words_;
};

}  // namespace orbelle::graphics
