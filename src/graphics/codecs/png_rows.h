// The rows of a PNG picture and the filters that make them easier to compress.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/codecs/png_parts.h"

namespace orbelle::graphics {

// Rows of bytes, not filtered yet.
struct PngRows {
    PngForm Form;
    std::size_t BytesPerPixel = 1;  // of what a filter takes for the pixel to the left
    std::size_t Stride = 0;
    std::vector<std::uint8_t> Bytes = {};
};

// What a filter takes a byte's neighbours for; its number stands before each row.
enum class PngFilter : std::uint8_t { None, Left, Above, Mean, Paeth };

// How the filter of a row is chosen: by the sum of its bytes, up and down, or by how many different
// pairs of bytes follow each other. The second is nearer to what compresses well, and slower.
enum class PngChoice { LeastUnrest, FewestPairs };

// 8-bit RGBA (Rgb24 bitmaps: RGB), red first, all bits kept.
PngRows WholeRows(const Bitmap& image);

// Each row after its filter's number, filtered by the best of these, the first of equals.
std::vector<std::uint8_t> FilterRows(const PngRows& rows, std::span<const PngFilter> filters,
                                     PngChoice choice = PngChoice::LeastUnrest);

}  // namespace orbelle::graphics
