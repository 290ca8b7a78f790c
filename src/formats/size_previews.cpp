#include "formats/size_previews.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "document/compositor.h"
#include "filters/shrink_to_size.h"

namespace orbelle::formats {

using document::Page;
using graphics::Bitmap;

std::vector<Finding> EvidentFindings(const std::vector<SizePreview>& previews,
                                     const std::vector<int>& sizes,
                                     const document::Family& family) {
    std::vector<Finding> findings = FindingsOfPages(family);
    for (const SizePreview& preview : previews) {
        if (std::ranges::find(sizes, preview.Size) != sizes.end())
            std::ranges::copy_if(preview.Findings, std::back_inserter(findings),
                                 &Finding::IsEvident);
    }
    return InOrder(std::move(findings));
}

const SizePreviews::Made* SizePreviews::Find(int size, const Page* artwork) const {
    const auto found = std::ranges::find_if(made_, [&](const Made& made) {
        const bool isSame = artwork && made.Artwork ? LookAlike(*made.Artwork, *artwork)
                                                    : !artwork && !made.Artwork;
        return made.Preview.Size == size && isSame;
    });
    return found == made_.end() ? nullptr : &*found;
}

std::vector<SizePreview> SizePreviews::Make(const document::Family& family, const Bitmap& current,
                                            const std::vector<int>& sizes) {
    if (!LookAlike(master_, family.Master)) {
        std::erase_if(made_, [](const Made& made) { return !made.Artwork; });
        master_ = family.Master;
    }
    const auto flat = [&](const Page& page) {
        return &page == &family.Current() ? current : document::Flatten(page);
    };
    Bitmap master;
    const auto make = [&](int size, const Page* artwork) {
        if (!artwork && master.IsEmpty())
            master = flat(family.Master);
        Bitmap picture = artwork ? flat(*artwork) : filters::ShrinkToSize(master, size);
        std::vector<Finding> findings = FindingsAt(size, picture, family);
        return SizePreview{size, std::move(picture), std::move(findings)};
    };
    std::vector<Made> made;
    std::vector<SizePreview> previews;
    for (const int size : sizes) {
        const Page* artwork = family.ArtworkOf(size);
        const Made* known = Find(size, artwork);
        made.push_back(
            known ? *known
                  : Made{artwork ? std::optional(*artwork) : std::nullopt, make(size, artwork)});
        previews.push_back(made.back().Preview);
    }
    made_ = std::move(made);
    return previews;
}

}  // namespace orbelle::formats
