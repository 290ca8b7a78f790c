// Windows icon files (.ico), read: only uncompressed pictures of 32 bits a pixel
// (docs/oddities.md, "Icons of 32 bits").
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/byte_source.h"

namespace orbelle::formats {

struct IconEntryImage {
    int Width = 0;  // pixels
    int Height = 0;
    std::int16_t BitCount = 0;  // as the entry says, whatever its pixels are
    graphics::Bitmap Image;
};

// Whether the source begins like an icon file. Files of type 0, which the reader takes, too, are
// not told from others by that.
bool IsIcon(const graphics::ByteSource& file);

// Every entry, in file order. Whatever BitCount says, the pixels are taken as 32 bits each, bottom
// row first, right behind the 40 bytes of the header; masks and palettes are ignored. Bytes that
// the file lacks read as zero. Throws graphics::ImageError for the whole file when the header is
// not that of an icon, there is no entry, or any entry has a size that no bitmap can have (a PNG
// entry always looks like that). So that a short file takes little memory, it also throws when the
// entries have more than graphics::kMaxBitmapPixels in all, or when one above kMaxUnbackedPixels
// has no pixel in the file.
std::vector<IconEntryImage> DecodeIcon(const graphics::ByteSource& file);

inline constexpr std::int64_t kMaxUnbackedPixels = std::int64_t{1024} * 1024;

// The same with a file. Throws graphics::FileError.
std::vector<IconEntryImage> ReadIconFile(const std::filesystem::path& path);

// The entries that the user can choose from: those above 8 bits. Others hold indexes, and read as
// colours they are nonsense.
std::vector<IconEntryImage> OfferedEntries(std::vector<IconEntryImage> entries);

}  // namespace orbelle::formats
