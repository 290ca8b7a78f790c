// What differs between two icons, size by size.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::formats {

// Two pixels differ by their largest difference in a channel of straight alpha, 0 to 255; one of
// alpha 0 counts as 0 in all channels, whatever its colour.
int PixelDifference(graphics::Argb a, graphics::Argb b);

// What two files show at one size.
struct SizePair {
    graphics::Bitmap A;  // empty: that file has no picture of this size
    graphics::Bitmap B;
    std::int64_t Pixels = 0;  // that differ, where both have a picture
    int Max = 0;              // the largest PixelDifference

    bool IsInBoth() const { return !A.IsEmpty() && !B.IsEmpty(); }
    bool Differs() const { return Pixels > 0 || !IsInBoth(); }
    // The picture itself where only one has it.
    const graphics::Bitmap& Either() const { return A.IsEmpty() ? B : A; }
    // The longer side, pixels.
    int Size() const;
};

// At every size that either has, in the order of PicturesOfFile. Pictures of the same width and
// height are paired, the first with the first.
std::vector<SizePair> PairPictures(std::span<const graphics::Bitmap> a,
                                   std::span<const graphics::Bitmap> b);

}  // namespace orbelle::formats
