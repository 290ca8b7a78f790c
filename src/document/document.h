// The open document.
#pragma once

#include <filesystem>

#include "document/family.h"
#include "graphics/color.h"
#include "graphics/file_stamp.h"

namespace orbelle::document {

struct Document : Family {
    graphics::Argb Background = 0;  // of all pages; 0: transparent
    std::filesystem::path Path;     // of the .volf file; empty until saved or opened
    std::filesystem::path Source;   // of the picture that it was made from; empty for others
    graphics::FileStamp Stamp;      // of that file when it was read or written
    bool Modified = false;
};

}  // namespace orbelle::document
