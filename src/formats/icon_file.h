// Windows icon and pointer files (.ico, .cur), written.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "formats/hotspot.h"
#include "graphics/bitmap.h"
#include "graphics/codecs/image_files.h"

namespace orbelle::formats {

// How the pictures stand in the file: as 32-bit bitmaps with an AND mask, only those of 256 pixels
// as PNG, or all as PNG.
enum class IconFormat { Bmp, Png256, Png };

inline constexpr int kMaxIconSide = 256;

// One entry per picture, in the order given; a width or height of 256 stands as 0 in the directory.
// `pngs`: for each picture the PNG that stands for it as it is; an empty one, or none at all: it is
// encoded. `hotspots`: for each picture that of a pointer, 0 to 65535; none at all: an icon. Throws
// std::invalid_argument for no picture, an empty one or one above kMaxIconSide.
std::vector<std::uint8_t> EncodeIcon(std::span<const graphics::Bitmap> pictures, IconFormat format,
                                     std::span<const std::vector<std::uint8_t>> pngs = {},
                                     std::span<const Hotspot> hotspots = {},
                                     graphics::PngPacking packing = graphics::PngPacking::Fast);

// Whether a picture of that size stands as PNG.
bool StandsAsPng(const graphics::Bitmap& picture, IconFormat format);

inline constexpr int kMaxCombinedPictures = 7;

// Puts up to seven picture files into one icon file, in the order given; empty names are passed
// over. With no name at all nothing is written. Throws graphics::FileError.
void CombinePngs(std::span<const std::filesystem::path> pictures,
                 const std::filesystem::path& output, IconFormat format = IconFormat::Bmp,
                 graphics::PngPacking packing = graphics::PngPacking::Fast);

}  // namespace orbelle::formats
