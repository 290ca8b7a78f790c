// Windows icon files (.ico), written.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::formats {

// How the pictures stand in the file: as 32-bit bitmaps with an AND mask, only those of 256 pixels
// as PNG, or all as PNG.
enum class IconFormat { Bmp, Png256, Png };

inline constexpr int kMaxIconSide = 256;

// One entry per picture, in the order given; a width or height of 256 stands as 0 in the directory.
// `pngs`: for each picture the PNG that stands for it as it is; an empty one, or none at all: it is
// encoded. Throws std::invalid_argument for no picture, an empty one or one above kMaxIconSide.
std::vector<std::uint8_t> EncodeIcon(std::span<const graphics::Bitmap> pictures, IconFormat format,
                                     std::span<const std::vector<std::uint8_t>> pngs = {});

inline constexpr int kMaxCombinedPictures = 7;

// Puts up to seven picture files into one icon file, in the order given; empty names are passed
// over. With no name at all nothing is written. Throws graphics::FileError.
void CombinePngs(std::span<const std::filesystem::path> pictures,
                 const std::filesystem::path& output, IconFormat format = IconFormat::Bmp);

}  // namespace orbelle::formats
