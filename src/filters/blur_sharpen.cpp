#include "filters/blur_sharpen.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace orbelle::filters {
namespace {

using namespace graphics;

// The channels of a pixel, or sums of them, in 16 bits each from the lowest on: blue, red, green,
// alpha. So whole pixels are added and multiplied at once.
using Lanes = std::uint64_t;
constexpr int kColorLanes = 3;

constexpr Lanes ToLanes(Argb color) {
    return (color & 0x00FF00FF) | Lanes{color & 0xFF00FF00} << 24;
}

constexpr Lanes ColorLanes(Argb color) {
    return ToLanes(color & 0x00FFFFFF);
}

constexpr Argb ToColor(Lanes lanes) {
    return static_cast<Argb>((lanes & 0x00FF00FF) | (lanes >> 24 & 0xFF00FF00));
}

constexpr unsigned Lane(Lanes lanes, int index) {
    return lanes >> 16 * index & 0xFFFF;
}

// Two of the lanes with room to multiply: Even holds blue and green, Odd red and alpha, in the low
// and the high 32 bits.
using LanePair = std::uint64_t;
constexpr LanePair kPairOfOnes = 0x0000'0001'0000'0001;
constexpr LanePair Even(Lanes lanes) {
    return lanes & 0xFFFF * kPairOfOnes;
}
constexpr LanePair Odd(Lanes lanes) {
    return Even(lanes >> 16);
}

// Division by 1 to 107 of up to 255 times that, rounded to the nearest, ties to even. It multiplies
// by 2^23 / divisor, rounded up: that makes the product too large by less than 256 x 107, and
// 2^23 / 107 would be needed to reach the next whole quotient.
class RoundingDivisor {
public:
    explicit RoundingDivisor(unsigned divisor)
        : factor_(((1U << 23) + divisor - 1) / divisor),
          half_(divisor / 2 * factor_ * kPairOfOnes),
          tie_(divisor % 2 == 0 ? factor_ * kPairOfOnes : 0) {}

    LanePair Divide(LanePair numbers) const {
        const LanePair up = numbers * factor_ + half_;
        const LanePair down = up - tie_;
        // Only at a tie do the two differ, by one: there the odd one loses its last bit.
        return (up >> 23) & (down >> 23 | 0xFE * kPairOfOnes) & 0xFF * kPairOfOnes;
    }

private:
    std::uint64_t factor_, half_, tie_;
};

// A neighbour's colours and, in the alpha lane, 1; nothing for a transparent one.
constexpr Lanes VisibleLanes(Argb color) {
    return AlphaOf(color) != 0 ? ColorLanes(color) | Lanes{1} << 48 : 0;
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

void Soften(Bitmap& image, int level) {
    if (image.IsEmpty())
        return;
    constexpr unsigned kMostNeighbors = 6;
    const unsigned own = 101 - std::clamp(level, 0, 100);
    std::vector<RoundingDivisor> divisors;
    for (unsigned neighbors = 0; neighbors <= kMostNeighbors; ++neighbors)
        divisors.emplace_back(own + neighbors);

    const int width = image.Width();
    const std::vector<Argb> outside(width);
    Argb* row = image.MutablePixels();
    for (int y = 0; y < image.Height(); ++y, row += width) {
        const Argb* above = y > 0 ? row - width : outside.data();
        const Argb* below = y + 1 < image.Height() ? row + width : outside.data();
        Argb color = row[0];
        Lanes aboveHere = VisibleLanes(above[0]);
        Lanes belowLeft = 0;
        // The left neighbour is apart from the others: it's the one that is waited for.
        unsigned leftVisible = 0;
        LanePair leftEven = 0, leftOdd = 0;
        for (int x = 0; x < width; ++x) {
            const bool isLast = x + 1 == width;
            const Argb right = isLast ? 0 : row[x + 1];
            const Lanes aboveRight = VisibleLanes(isLast ? 0 : above[x + 1]);
            const Lanes belowHere = VisibleLanes(below[x]);
            const Lanes neighbors =
                aboveHere + aboveRight + VisibleLanes(right) + belowLeft + belowHere;
            const Lanes sums = ColorLanes(color) * own + neighbors;
            const RoundingDivisor& divisor = divisors[(neighbors >> 48) + leftVisible];

            const LanePair even = divisor.Divide(Even(sums) + leftEven);
            const LanePair odd = divisor.Divide(Odd(sums) + leftOdd);
            const auto red = static_cast<Argb>(odd) << 16;
            row[x] = (color & 0xFF000000) | red | static_cast<Argb>(even | even >> 24);

            leftVisible = AlphaOf(color) != 0 ? 1 : 0;
            leftEven = leftVisible ? even : 0;
            leftOdd = leftVisible ? odd & 0xFF : 0;
            color = right;
            aboveHere = aboveRight;
            belowLeft = belowHere;
        }
    }
}

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
