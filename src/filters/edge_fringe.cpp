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

bool AreNear(Argb first, Argb second) {
    const auto distance = [=](unsigned (*channel)(Argb)) {
        return std::abs(static_cast<int>(channel(first)) - static_cast<int>(channel(second)));
    };
    return std::max({distance(graphics::RedOf), distance(graphics::GreenOf),
                     distance(graphics::BlueOf)}) <= kLargestDistance;
}

bool IsForeign(const Bitmap& picture, int x, int y) {
    const Argb color = picture.Row(y)[x];
    const int left = std::max(x - kReach, 0), right = std::min(x + kReach, picture.Width() - 1);
    const int bottom = std::min(y + kReach, picture.Height() - 1);
    for (int row = std::max(y - kReach, 0); row <= bottom; ++row) {
        const Argb* colors = picture.Row(row);
        if (std::any_of(colors + left, colors + right + 1, [=](Argb other) {
                return graphics::AlphaOf(other) == kOpaqueAlpha && AreNear(color, other);
            }))
            return false;
    }
    return true;
}

}  // namespace

bool HasFringe(const Bitmap& picture) {
    std::size_t edge = 0, foreign = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            if (!IsEdge(picture, x, y))
                continue;
            ++edge;
            foreign += IsForeign(picture, x, y) ? 1 : 0;
        }
    }
    return foreign * kOneIn > edge;
}

}  // namespace orbelle::filters
