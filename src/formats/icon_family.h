// All sizes of an icon file as the pages of one document.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "document/document.h"
#include "formats/hotspot.h"

namespace orbelle::formats {

struct IconFamily {
    document::Document Document;  // unmodified, no path
    std::string LeftOut;          // images that can't stand for their size, and why; empty: none
    std::optional<formats::Hotspot> Hotspot = {};  // of the largest image of a pointer
};

// The largest picture is the master's only layer, every other one the artwork of its size; of two
// of one size it is the one with more bits, then the first. Throws graphics::FileError when the
// file can't be read or holds no picture that IsIconSize allows.
IconFamily LoadIconFamily(const std::filesystem::path& path);

}  // namespace orbelle::formats
