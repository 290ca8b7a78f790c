// Pictures of random pixels, and their channels one by one, for comparisons with a plainly written
// form of an operation.
#pragma once

#include <random>
#include <utility>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::testing {

// Every third pixel is transparent (its colour is not), every third opaque.
inline graphics::Bitmap RandomPicture(std::mt19937& random, int width, int height) {
    graphics::Bitmap picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto kind = random() % 3;
            const auto color = static_cast<graphics::Argb>(random());
            picture.SetPixel(x, y, kind == 2 ? color : graphics::SetAlphaByte(color, kind * 255));
        }
    }
    return picture;
}

inline constexpr int kBlue = 0, kGreen = 8, kRed = 16, kAlpha = 24;  // places of channels

// (x, y) lies inside.
inline int ChannelAt(const graphics::Bitmap& picture, int x, int y, int channel) {
    return static_cast<int>(*picture.GetPixel(x, y) >> channel & 0xFF);
}

inline void SetChannel(graphics::Bitmap& picture, int x, int y, int channel, int value) {
    const graphics::Argb others = *picture.GetPixel(x, y) & ~(0xFFU << channel);
    picture.SetPixel(x, y, others | static_cast<graphics::Argb>(value) << channel);
}

inline bool IsInside(const graphics::Bitmap& picture, int x, int y) {
    return x >= 0 && y >= 0 && x < picture.Width() && y < picture.Height();
}

// The sizes where borders meet, and some at random.
inline std::vector<std::pair<int, int>> SizesToTry(std::mt19937& random) {
    std::vector<std::pair<int, int>> sizes = {{0, 0}, {1, 1}, {1, 9}, {9, 1}, {2, 2},
                                              {2, 7}, {7, 2}, {3, 3}, {3, 4}, {4, 3}};
    while (sizes.size() < 20)
        sizes.emplace_back(1 + random() % 40, 1 + random() % 40);
    return sizes;
}

}  // namespace orbelle::testing
