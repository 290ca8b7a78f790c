#include "filters/edge_fringe.h"

#include <algorithm>
#include <cstdlib>

namespace orbelle::filters {
namespace {

using graphics::Argb;
using graphics::Bitmap;

constexpr unsigned kFaintAlpha = 127;
constexpr unsigned kOpaqueAlpha = 255;
constexpr int kReach = 3;             // pixels, across and down
constexpr int kLargestDistance = 64;  // of one channel
constexpr std::size_t kOneIn = 20;

bool IsOpaque(const Bitmap& picture, int x, int y) {
    return x >= 0 && x < picture.Width() && y >= 0 && y < picture.Height() &&
           graphics::AlphaOf(picture.Row(y)[x]) == kOpaqueAlpha;
}

bool IsEdge(const Bitmap& picture, int x, int y) {
    const unsigned alpha = graphics::AlphaOf(picture.Row(y)[x]);
    return alpha > 0 && alpha <= kFaintAlpha &&
           (IsOpaque(picture, x - 1, y) || IsOpaque(picture, x + 1, y) ||
            IsOpaque(picture, x, y - 1) || IsOpaque(picture, x, y + 1));
}

using AreNear = bool (*)(Argb edge, Argb body);

// Of the differences that the edge has to the body.
template <typename Measure>
int LargestOfChannels(Argb edge, Argb body, Measure measure) {
    const auto distance = [=](unsigned (*channel)(Argb)) {
        return measure(static_cast<int>(channel(edge)) - static_cast<int>(channel(body)));
    };
    return std::max(
        {distance(graphics::RedOf), distance(graphics::GreenOf), distance(graphics::BlueOf)});
}

bool AreAlike(Argb edge, Argb body) {
    return LargestOfChannels(edge, body, [](int difference) { return std::abs(difference); }) <=
           kLargestDistance;
}

bool IsNoBrighter(Argb edge, Argb body) {
    return LargestOfChannels(edge, body, [](int difference) { return difference; }) <=
           kLargestDistance;
}

bool IsForeign(const Bitmap& picture, int x, int y, AreNear areNear) {
    const Argb color = picture.Row(y)[x];
    const int left = std::max(x - kReach, 0), right = std::min(x + kReach, picture.Width() - 1);
    const int bottom = std::min(y + kReach, picture.Height() - 1);
    for (int row = std::max(y - kReach, 0); row <= bottom; ++row) {
        const Argb* colors = picture.Row(row);
        if (std::any_of(colors + left, colors + right + 1, [=](Argb other) {
                return graphics::AlphaOf(other) == kOpaqueAlpha && areNear(color, other);
            }))
            return false;
    }
    return true;
}

bool HasForeignEdge(const Bitmap& picture, AreNear areNear) {
    std::size_t edge = 0, foreign = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            if (!IsEdge(picture, x, y))
                continue;
            ++edge;
            foreign += IsForeign(picture, x, y, areNear) ? 1 : 0;
        }
    }
    return foreign * kOneIn > edge;
}

}  // namespace

bool HasFringe(const Bitmap& picture) {
    return HasForeignEdge(picture, AreAlike);
}

bool HasLightFringe(const Bitmap& picture) {
    return HasForeignEdge(picture, IsNoBrighter);
}

}  // namespace orbelle::filters
