// What an icon file held whose sizes became a document.
#pragma once

#include <cstdint>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::document {

struct OpenedIcon {
    struct Entry {
        int Size = 0;                   // pixels a side
        graphics::Bitmap Picture;       // as the document made it at first
        std::vector<std::uint8_t> Png;  // as it stands in the file; empty: it is no PNG there
    };

    std::vector<Entry> Entries;  // in file order, each size once
};

}  // namespace orbelle::document
