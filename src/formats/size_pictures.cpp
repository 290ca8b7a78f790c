#include "formats/size_pictures.h"

#include <algorithm>

#include "document/compositor.h"
#include "filters/shrink_to_size.h"

namespace orbelle::formats {
namespace {

using document::OpenedIcon;
using graphics::Bitmap;

bool HasSamePixels(const Bitmap& a, const Bitmap& b) {
    const auto count = static_cast<std::size_t>(a.Width()) * static_cast<std::size_t>(a.Height());
    return a.Width() == b.Width() && a.Height() == b.Height() &&
           std::equal(a.Pixels(), a.Pixels() + count, b.Pixels());
}

Bitmap OwnOrElse(const FlatFamily& family, int size, Bitmap (*make)(const Bitmap&, int)) {
    const auto own = std::ranges::find(family.Sizes, size, &std::pair<int, Bitmap>::first);
    return own != family.Sizes.end() ? own->second : make(family.Master, size);
}

}  // namespace

FlatFamily Flatten(const document::Document& document, const graphics::Bitmap& current) {
    const auto flat = [&](const document::Page& page) {
        return &page == &document.Current() ? current : document::Flatten(page);
    };
    FlatFamily flattened{flat(document.Master), {}, document.Icon};
    for (const document::SizePage& page : document.Sizes)
        flattened.Sizes.emplace_back(page.Size, flat(page.Artwork));
    return flattened;
}

Bitmap PictureForSize(const FlatFamily& family, int size) {
    return OwnOrElse(family, size, filters::ShrinkToSize);
}

Bitmap EnlargedPictureForSize(const FlatFamily& family, int size) {
    return OwnOrElse(family, size, filters::ScaleToSize);
}

Bitmap PictureOfSide(const FlatFamily& family, int side) {
    return OwnOrElse(family, side, filters::ScaleToSide);
}

std::vector<std::uint8_t> UntouchedPng(const FlatFamily& family, const graphics::Bitmap& picture) {
    if (!family.Icon)
        return {};
    const auto& entries = family.Icon->Entries;
    const auto entry = std::ranges::find(entries, picture.Width(), &OpenedIcon::Entry::Size);
    return entry != entries.end() && HasSamePixels(entry->Picture, picture)
               ? entry->Png
               : std::vector<std::uint8_t>();
}

}  // namespace orbelle::formats
