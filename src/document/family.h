// The pages of an icon: the master, and one for each size that has artwork of its own.
#pragma once

#include <vector>

#include "document/page.h"

namespace orbelle::document {

// The sizes that may have artwork of their own, pixels a side.
inline constexpr int kMinArtworkSize = 8;
inline constexpr int kMaxArtworkSize = 256;

struct SizePage {
    int Size = 0;
    Page Artwork;  // Size x Size
};

struct Family {
    static constexpr int kMaster = 0;  // where sizes are told: the master

    Page Master;                  // what every other size of the icon is made from
    std::vector<SizePage> Sizes;  // by rising size, each once
    int EditedSize = kMaster;     // whose page is in force: a size that has one, or the master

    // The page in force: the one that is being edited.
    Page& Current();
    const Page& Current() const;

    // Null: the size has no artwork of its own.
    const Page* ArtworkOf(int size) const;
    // In place of what there was, if anything.
    void SetArtwork(int size, Page artwork);
    // The master is in force then, if that page was.
    void RemoveArtwork(int size);

    // All pages, the master first, then by rising size.
    std::vector<const Page*> Pages() const;
};

}  // namespace orbelle::document
