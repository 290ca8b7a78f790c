#include "filters/blur_sharpen.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace orbelle::filters {
namespace {

using namespace graphics;

// The colours of a pixel, or sums of them, in 16 bits each from the lowest on: blue, red, green. So
// whole pixels are added and multiplied at once.
using Lanes = std::uint64_t;
constexpr int kColorLanes = 3;

constexpr Lanes ColorLanes(Argb color) {
    return (color & 0x00FF00FF) | Lanes{color & 0x0000FF00} << 24;
}

constexpr unsigned Lane(Lanes lanes, int index) {
    return lanes >> 16 * index & 0xFFFF;
}

// number / divisor for 0 to `highest`, rounded down, at most 255; 0 for negative numbers down to
// `lowest`. One entry each from `lowest` on.
std::vector<std::uint8_t> MakeQuotients(int lowest, int highest, int divisor) {
    std::vector<std::uint8_t> quotients(-lowest);
    quotients.reserve(highest - lowest + 1);
    for (int number = 0; number <= highest; number += divisor)
        quotients.insert(quotients.end(), std::min(divisor, highest + 1 - number),
                         static_cast<std::uint8_t>(std::min(number / divisor, 255)));
    return quotients;
}

}  // namespace

void Sharpen(Bitmap& image, int level) {
    const int width = image.Width();
    const int height = image.Height();
    if (width < 3 || height < 3)
        return;
    constexpr int kNeighbors = 8;
    constexpr int kLowest = -255 * kNeighbors;
    constexpr Lanes kShift = -kLowest * Lanes{0x0001'0001'0001};  // no lane falls below zero
    const int own = 109 - std::clamp(level, 0, 100);
    const auto quotients = MakeQuotients(kLowest, 255 * own, own - kNeighbors);

    Argb* row = image.MutablePixels() + width;
    for (int y = 1; y + 1 < height; ++y, row += width) {
        const auto column = [above = row - width, row, below = row + width](int x) {
            return ColorLanes(above[x]) + ColorLanes(row[x]) + ColorLanes(below[x]);
        };
        std::array<unsigned, kColorLanes> left;
        for (int i = 0; i < kColorLanes; ++i)
            left[i] = Lane(ColorLanes(row[0]), i);
        Lanes cornersLeft = column(0) - ColorLanes(row[0]);
        Lanes columnHere = column(1);
        for (int x = 1; x + 1 < width; ++x) {
            const Lanes here = ColorLanes(row[x]);
            const Lanes columnRight = column(x + 1);
            const Lanes others = here * (own + 1) + kShift - cornersLeft - columnHere - columnRight;
            // Subtracted last: the left neighbour is the one that is waited for.
            for (int i = 0; i < kColorLanes; ++i)
                left[i] = quotients[Lane(others, i) - left[i]];
            row[x] = (row[x] & 0xFF000000) | left[1] << 16 | left[2] << 8 | left[0];
            cornersLeft = columnHere - here;
            columnHere = columnRight;
        }
    }
}

}  // namespace orbelle::filters
