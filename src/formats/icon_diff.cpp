#include "formats/icon_diff.h"

#include <algorithm>
#include <cstdlib>

namespace orbelle::formats {
namespace {

using graphics::AlphaOf;
using graphics::Argb;
using graphics::Bitmap;

void Measure(SizePair& pair) {
    if (!pair.IsInBoth() || pair.A.SharesPixelsWith(pair.B))
        return;
    const auto count =
        static_cast<std::size_t>(pair.A.Width()) * static_cast<std::size_t>(pair.A.Height());
    for (std::size_t i = 0; i < count; ++i) {
        const int difference = PixelDifference(pair.A.Pixels()[i], pair.B.Pixels()[i]);
        pair.Pixels += difference > 0 ? 1 : 0;
        pair.Max = std::max(pair.Max, difference);
    }
}

}  // namespace

int PixelDifference(Argb a, Argb b) {
    if (a == b)
        return 0;
    a = AlphaOf(a) == 0 ? 0 : a;
    b = AlphaOf(b) == 0 ? 0 : b;
    int largest = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const int difference =
            static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
        largest = std::max(largest, std::abs(difference));
    }
    return largest;
}

int SizePair::Size() const {
    return std::max(Either().Width(), Either().Height());
}

std::vector<SizePair> PairPictures(std::span<const Bitmap> a, std::span<const Bitmap> b) {
    std::vector<SizePair> pairs;
    for (const Bitmap& picture : a)
        pairs.push_back({.A = picture, .B = {}});
    for (const Bitmap& picture : b) {
        const auto partner = std::ranges::find_if(pairs, [&](const SizePair& pair) {
            return pair.B.IsEmpty() && pair.A.Width() == picture.Width() &&
                   pair.A.Height() == picture.Height();
        });
        if (partner != pairs.end())
            partner->B = picture;
        else
            pairs.push_back({.A = {}, .B = picture});
    }
    std::ranges::stable_sort(pairs, {}, &SizePair::Size);
    std::ranges::for_each(pairs, Measure);
    return pairs;
}

}  // namespace orbelle::formats
