// The pictures that leave the program, by their size.
#pragma once

#include <utility>
#include <vector>

#include "document/family.h"
#include "graphics/bitmap.h"

namespace orbelle::formats {

// The pages of a document, flattened, without background.
struct FlatFamily {
    graphics::Bitmap Master;
    std::vector<std::pair<int, graphics::Bitmap>> Sizes;  // that have artwork of their own
};

// `current` is the page in force, which is flattened already.
FlatFamily Flatten(const document::Family& family, const graphics::Bitmap& current);

// The artwork of that size, else the master as filters::ShrinkToSize makes it.
graphics::Bitmap PictureForSize(const FlatFamily& family, int size);

}  // namespace orbelle::formats
