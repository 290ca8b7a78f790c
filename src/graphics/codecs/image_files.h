// Picture files: PNG, JPEG, GIF and BMP in and out; WebP and SVG in.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/byte_source.h"
#include "graphics/codecs/pixel_budget.h"
#include "graphics/errors.h"
#include "graphics/indexed_bitmap.h"

namespace orbelle::graphics {

// The longer side of a drawing, pixels.
inline constexpr int kDefaultSvgSide = 512;
inline constexpr int kMaxSvgSide = 1024;

// The picture in the file, told by its first bytes, not by its name. Straight alpha; colours that
// the file states otherwise become sRGB; resolution is ignored. Of an animation the first frame; a
// drawing with a longer side of `svgSide` pixels. Throws FileError.
Bitmap LoadImageFromFile(const std::filesystem::path& path, PixelBudget budget = {},
                         int svgSide = kDefaultSvgSide);

// The same from a source. Declared sizes are checked against the budget and against the data before
// memory is taken. Throws ImageError.
Bitmap DecodeImage(const ByteSource& file, PixelBudget& budget, int svgSide = kDefaultSvgSide);
Bitmap DecodeImage(std::span<const std::uint8_t> file);

// A picture that is part of a document: PNG, JPEG, GIF or BMP. Its numbers are the pixels, whatever
// it says of its colours, so that documents stay what they were. Throws ImageError.
Bitmap DecodeStoredImage(const ByteSource& file, PixelBudget& budget);

// The size that a drawing has by itself, pixels, rounded. Throws FileError.
struct SvgSize {
    int Width = 0;
    int Height = 0;
};
SvgSize ReadSvgSize(const std::filesystem::path& path);
SvgSize SizeOfSvg(const ByteSource& file);

// Whether the source is a drawing: told by its first element, which begins within 4 KiB; packed by
// gzip, too.
bool IsSvg(const ByteSource& file);

// Whether the source begins like one of the pictures above.
bool IsPicture(const ByteSource& file);

// 8-bit RGBA straight from the pixels, colours under alpha 0 kept (Rgb24 bitmaps: 8-bit RGB).
// An empty bitmap gives no bytes. Packed quickly.
std::vector<std::uint8_t> EncodePng(const Bitmap& image);

// A file as small as can be, in thirty times the time, on all cores: every visible pixel is the
// same, those of alpha 0 become 0. Palettes, greys and opaque pictures are stored as such.
std::vector<std::uint8_t> EncodeSmallPng(const Bitmap& image);

// Fast: all is kept, as above, in a file a twelfth smaller for twice the time.
enum class PngPacking { Fast, Small };
std::vector<std::uint8_t> EncodePng(const Bitmap& image, PngPacking packing);

// 24 bits, bottom-up, uncompressed, 3780 pixels a metre; alpha is dropped. An empty bitmap
// gives no bytes.
std::vector<std::uint8_t> EncodeBmp(const Bitmap& image);

// GIF89a, one frame, not interlaced, all 256 palette entries. The first entry with alpha 0 is the
// file's transparent colour if a pixel uses it; other alphas are dropped. An empty picture gives no
// bytes. Throws std::invalid_argument when Indexes does not fit the size or the size is not
// allowed, ImageError when the encoder fails.
std::vector<std::uint8_t> EncodeGif(const IndexedBitmap& image);

// Baseline JFIF at 96 dpi, colours at full resolution; alpha is dropped. Quality 1 to 100, others
// count as the nearest of these. An empty bitmap gives no bytes.
std::vector<std::uint8_t> EncodeJpeg(const Bitmap& image, int quality);

}  // namespace orbelle::graphics
