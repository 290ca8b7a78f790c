// The pictures that leave the program, by their size.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "document/document.h"
#include "graphics/bitmap.h"

namespace orbelle::formats {

// The pages of a document, flattened, without background.
struct FlatFamily {
    graphics::Bitmap Master;
    std::vector<std::pair<int, graphics::Bitmap>> Sizes = {};  // that have artwork of their own
    std::shared_ptr<const document::OpenedIcon> Icon = {};     // Document::Icon
};

// `current` is the page in force, which is flattened already.
FlatFamily Flatten(const document::Document& document, const graphics::Bitmap& current);

// The artwork of that size, else the master as filters::ShrinkToSize makes it.
graphics::Bitmap PictureForSize(const FlatFamily& family, int size);

// The same where sizes above the master's are wanted in earnest: as filters::ScaleToSize makes it.
graphics::Bitmap EnlargedPictureForSize(const FlatFamily& family, int size);

// A picture of its own: the artwork of that size, else the master as filters::ScaleToSide makes it.
graphics::Bitmap PictureOfSide(const FlatFamily& family, int side);

// The PNG of the icon file that the document was opened from, as it stands there, when that size's
// picture still is what it was; else empty.
std::vector<std::uint8_t> UntouchedPng(const FlatFamily& family, const graphics::Bitmap& picture);

}  // namespace orbelle::formats
