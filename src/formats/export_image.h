// Export: the composed page as a picture file of another kind.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "formats/gif_palette.h"
#include "formats/icon_file.h"
#include "formats/size_pictures.h"
#include "graphics/bitmap.h"
#include "graphics/color.h"

namespace orbelle::formats {

enum class ExportFormat { Ico, Png, Gif, Jpeg, Bmp };

// Told by the path's extension, whatever its case: .ico, .png, .gif, .jpg or .jpeg, .bmp.
std::optional<ExportFormat> FindExportFormat(const std::filesystem::path& path);

struct ExportSettings {
    std::vector<int> IconSizes = {};  // 1 to 256; empty: IconSizesFor the page
    // Without IconSizes, sizes that have artwork of their own are in the icon although the page's
    // table has them not.
    bool AddsArtworkSizes = false;
    IconFormat IconPictures = IconFormat::Png256;
    // An icon's pictures are also left in SizesFolder() until the next export of one.
    bool LeavesScratchPictures = false;
    // 0 to kMaxGifThreshold: pixels of a lower alpha become transparent in a GIF.
    int GifThreshold = kUsualGifThreshold;
};

// The sizes of an icon made from a page: the row of 256, 128, 64, 48, 32, 24, 16 that the larger
// side reaches and all below it, largest first; none below 16.
std::vector<int> IconSizesFor(int pageWidth, int pageHeight);

// The page over its background as a GIF is made from it: a background whose alpha is 0 counts as
// none.
graphics::Bitmap DrawGifSurface(const graphics::Bitmap& page, graphics::Argb pageBackground);

// Writes the composed page `page` to `path`. PNG, BMP, JPEG and GIF have the background under the
// picture (0: transparent in PNG and GIF, white in the others), an icon never has. A page too small
// for any icon size writes no file; a failure to leave scratch pictures is none of the export.
// Throws graphics::FileError, also for an empty page; std::invalid_argument for an icon size out of
// range.
void ExportImage(const std::filesystem::path& path, ExportFormat format,
                 const graphics::Bitmap& page, graphics::Argb pageBackground,
                 const ExportSettings& settings = {});

// The same of a whole family, as an icon.
void ExportIcon(const std::filesystem::path& path, const FlatFamily& family,
                const ExportSettings& settings = {});

// The folder "Sizes" in the user's cache folder (XDG_CACHE_HOME, else ~/.cache; LOCALAPPDATA on
// Windows); not made here. Empty when there is no such folder.
std::filesystem::path SizesFolder();

}  // namespace orbelle::formats
