// The open document.
#pragma once

#include <filesystem>
#include <memory>

#include "document/family.h"
#include "document/opened_icon.h"
#include "graphics/color.h"
#include "graphics/file_stamp.h"

namespace orbelle::document {

struct Document : Family {
    graphics::Argb Background = 0;  // of all pages; 0: transparent
    std::filesystem::path Path;     // of the .volf file; empty until saved or opened
    std::filesystem::path Source;   // of the picture that it was made from; empty for others
    graphics::FileStamp Stamp;      // of that file when it was read or written
    std::shared_ptr<const OpenedIcon> Icon;  // whose sizes it was opened with; null for others
    bool Modified = false;
};

}  // namespace orbelle::document
