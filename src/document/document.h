// The open document: the family of an icon's pages.
#pragma once

#include <filesystem>

#include "document/page.h"
#include "graphics/color.h"
#include "graphics/file_stamp.h"

namespace orbelle::document {

struct Document {
    Page Master;                    // what every size of the icon is made from
    graphics::Argb Background = 0;  // of all pages; 0: transparent
    std::filesystem::path Path;     // of the .volf file; empty until saved or opened
    std::filesystem::path Source;   // of the picture that it was made from; empty for others
    graphics::FileStamp Stamp;      // of that file when it was read or written
    bool Modified = false;

    // The page that is being edited.
    Page& Current() { return Master; }
    const Page& Current() const { return Master; }
};

}  // namespace orbelle::document
