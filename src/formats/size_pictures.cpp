#include "formats/size_pictures.h"

#include <algorithm>

#include "document/compositor.h"
#include "filters/shrink_to_size.h"

namespace orbelle::formats {

FlatFamily Flatten(const document::Family& family, const graphics::Bitmap& current) {
    const auto flat = [&](const document::Page& page) {
        return &page == &family.Current() ? current : document::Flatten(page);
    };
    FlatFamily flattened{flat(family.Master), {}};
    for (const document::SizePage& page : family.Sizes)
        flattened.Sizes.emplace_back(page.Size, flat(page.Artwork));
    return flattened;
}

graphics::Bitmap PictureForSize(const FlatFamily& family, int size) {
    const auto own =
        std::ranges::find(family.Sizes, size, &std::pair<int, graphics::Bitmap>::first);
    return own != family.Sizes.end() ? own->second : filters::ShrinkToSize(family.Master, size);
}

}  // namespace orbelle::formats
