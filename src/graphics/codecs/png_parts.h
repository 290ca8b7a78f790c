// What PNG files are put together from.
#pragma once

#include <cstdint>
#include <vector>

namespace orbelle::graphics {

enum class PngColors : std::uint8_t { Gray = 0, Rgb = 2, Palette = 3, GrayAlpha = 4, RgbAlpha = 6 };

struct PngForm {
    int Width = 0;
    int Height = 0;
    int Depth = 8;  // bits a channel, or an index
    PngColors Colors = PngColors::RgbAlpha;
    std::vector<std::uint8_t> Palette = {};  // red, green, blue of each colour
    std::vector<std::uint8_t> Alphas = {};   // of the palette's first colours; the others have 255
};

// The file of rows that have been filtered and compressed.
std::vector<std::uint8_t> AssemblePng(const PngForm& form, const std::vector<std::uint8_t>& data);

// As a zlib stream, at a level from 1 to 12.
std::vector<std::uint8_t> Deflate(const std::vector<std::uint8_t>& data, int level);

}  // namespace orbelle::graphics
