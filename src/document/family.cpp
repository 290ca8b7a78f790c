#include "document/family.h"

#include <algorithm>
#include <iterator>
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

std::optional<int> Family::Neighbour(int step) const {
    // Counted from the master on, against the order of `Sizes`.
    const auto last = std::ssize(Sizes);
    const auto edited = std::ranges::find(Sizes, EditedSize, &SizePage::Size) - Sizes.begin();
    const auto there = last - edited + step;
    if (there < 0 || there > last)
        return std::nullopt;
    return there == 0 ? kMaster : Sizes[static_cast<std::size_t>(last - there)].Size;
}

std::vector<const Page*> Family::Pages() const {
    std::vector<const Page*> pages{&Master};
    for (const SizePage& page : Sizes)
        pages.push_back(&page.Artwork);
    return pages;
}

std::string NameOfSize(int size) {
    return std::to_string(size) + " x " + std::to_string(size);
}

}  // namespace orbelle::document
