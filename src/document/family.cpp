#include "document/family.h"

#include <algorithm>
#include <utility>

namespace orbelle::document {

const Page* Family::ArtworkOf(int size) const {
    const auto found = std::ranges::find(Sizes, size, &SizePage::Size);
    return found == Sizes.end() ? nullptr : &found->Artwork;
}

const Page& Family::Current() const {
    const Page* artwork = EditedSize == kMaster ? nullptr : ArtworkOf(EditedSize);
    return artwork ? *artwork : Master;
}

Page& Family::Current() {
    return const_cast<Page&>(std::as_const(*this).Current());
}

void Family::SetArtwork(int size, Page artwork) {
    const auto place = std::ranges::lower_bound(Sizes, size, {}, &SizePage::Size);
    if (place != Sizes.end() && place->Size == size)
        place->Artwork = std::move(artwork);
    else
        Sizes.insert(place, {size, std::move(artwork)});
}

void Family::RemoveArtwork(int size) {
    std::erase_if(Sizes, [size](const SizePage& page) { return page.Size == size; });
    if (EditedSize == size)
        EditedSize = kMaster;
}

std::vector<const Page*> Family::Pages() const {
    std::vector<const Page*> pages{&Master};
    for (const SizePage& page : Sizes)
        pages.push_back(&page.Artwork);
    return pages;
}

}  // namespace orbelle::document
