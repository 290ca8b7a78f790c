// Export: all pages of a document as an icon or a pointer.
#pragma once

#include <filesystem>
#include <span>
#include <vector>

#include "formats/export_settings.h"
#include "formats/size_pictures.h"

namespace orbelle::formats {

// The sizes of an icon made from a page: the row of 256, 128, 64, 48, 32, 24, 16 that the larger
// side reaches and all below it, largest first; none below 16.
std::vector<int> IconSizesFor(int pageWidth, int pageHeight);

// Those of Windows programs of today, and of web pages.
inline constexpr int kWindowsSizes[] = {16, 20, 24, 30, 32, 36, 40, 48, 60, 64, 72, 80, 96, 256};
inline constexpr int kFaviconSizes[] = {16, 32, 48};

// A pointer's hot spot in its picture of that size, rounded down: of a master that is not square
// the picture lies in the middle. Throws Error when it is outside the master.
Hotspot HotspotForSize(const graphics::Bitmap& master, Hotspot hotspot, int size);

enum class IconKind { Windows, Pointer, MacOs };

// The family as such a file, without background. A page too small for any of the sizes writes no
// file, one of macOS has all of kIcnsTypes, enlarged if need be. A failure to leave scratch
// pictures is none of the export. Throws graphics::FileError; std::invalid_argument for a size out
// of range.
void ExportIcon(const std::filesystem::path& path, IconKind kind, const FlatFamily& family,
                const ExportSettings& settings = {});

// What EncodeIcon takes as the picture's PNG; empty where it stands as bitmap. `packed`: the
// picture's PNG by the same settings, if it has been made already.
std::vector<std::uint8_t> PngForIcon(const FlatFamily& family, const graphics::Bitmap& picture,
                                     const ExportSettings& settings,
                                     std::vector<std::uint8_t> packed = {});

// The folder "Sizes" in the user's cache folder (graphics/user_folders.h); not made here. Empty
// when there is no such folder.
std::filesystem::path SizesFolder();

}  // namespace orbelle::formats
