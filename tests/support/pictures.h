// Small pictures for tests.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::testing {

// One character a pixel: '#' is `color`, anything else transparent black.
inline graphics::Bitmap PictureOf(const std::vector<std::string>& rows,
                                  graphics::Argb color = 0xFF336699) {
    graphics::Bitmap picture(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            if (rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#')
                picture.SetPixel(x, y, color);
    return picture;
}

inline graphics::Bitmap FilledPicture(int width, int height, graphics::Argb color) {
    return PictureOf(std::vector<std::string>(static_cast<std::size_t>(height),
                                              std::string(static_cast<std::size_t>(width), '#')),
                     color);
}

// A picture one pixel high.
inline graphics::Bitmap RowOf(const std::vector<graphics::Argb>& colors) {
    graphics::Bitmap row(static_cast<int>(colors.size()), 1);
    std::copy(colors.begin(), colors.end(), row.MutablePixels());
    return row;
}

// The alphas of one row.
inline std::vector<int> AlphaRow(const graphics::Bitmap& picture, int y) {
    std::vector<int> alphas;
    for (int x = 0; x < picture.Width(); ++x)
        alphas.push_back(static_cast<int>(graphics::AlphaOf(*picture.GetPixel(x, y))));
    return alphas;
}

// Row by row.
inline std::vector<graphics::Argb> PixelsOf(const graphics::Bitmap& picture) {
    const auto count = static_cast<std::ptrdiff_t>(picture.Width()) * picture.Height();
    return {picture.Pixels(), picture.Pixels() + count};
}

inline bool SamePixels(const graphics::Bitmap& a, const graphics::Bitmap& b) {
    return a.Width() == b.Width() && a.Height() == b.Height() && PixelsOf(a) == PixelsOf(b);
}

}  // namespace orbelle::testing
