// What the user has said about the files that exports write.
#pragma once

#include <optional>
#include <vector>

#include "formats/gif_palette.h"
#include "formats/hotspot.h"
#include "formats/icon_file.h"
#include "graphics/codecs/image_files.h"

namespace orbelle::formats {

inline constexpr int kMaxPictureSide = 1024;

struct ExportSettings {
    // 1 to 256, of icons and pointers. Empty: IconSizesFor the page. Nothing: those of the icon
    // that the document was opened from, else IconSizesFor the page.
    std::optional<std::vector<int>> IconSizes = {};
    // Without IconSizes, sizes that have artwork of their own are in the icon although the page's
    // table has them not.
    bool AddsArtworkSizes = false;
    IconFormat IconPictures = IconFormat::Png256;
    // Where pointers point, master pixels.
    Hotspot PointerHotspot = {};
    // 1 to kMaxPictureSide, the longer side of pictures that are no icons; nothing: the page's own.
    std::optional<int> PictureSide = {};
    graphics::PngPacking Packing = graphics::PngPacking::Fast;
    // An icon's pictures are also left in SizesFolder() until the next export of one.
    bool LeavesScratchPictures = false;
    // 0 to kMaxGifThreshold: pixels of a lower alpha become transparent in a GIF.
    int GifThreshold = kUsualGifThreshold;
};

}  // namespace orbelle::formats
