// What a file shows when it is opened, small: for lists of files.
#pragma once

#include <cstdint>
#include <filesystem>

#include "graphics/bitmap.h"

namespace orbelle::formats {

// A preview is not worth more: a larger file, or one that holds more pixels, has none.
inline constexpr std::uint64_t kMaxPreviewBytes = std::uint64_t{16} << 20;
inline constexpr std::int64_t kMaxPreviewPixels = std::int64_t{16} << 20;

// The page of a document with its background, the largest image of an icon, or the picture of
// another file, shrunk until it fits into a square of `side` pixels; smaller ones as they are.
// Straight alpha. Throws Error for a file that can't be read, is damaged, or is too large.
graphics::Bitmap PreviewOfFile(const std::filesystem::path& path, int side);

}  // namespace orbelle::formats
