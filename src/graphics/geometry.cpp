#include "graphics/geometry.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace orbelle::graphics {
namespace {

int Saturate(double value) {
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, lowest, highest));
}

}  // namespace

int RoundToEven(double value) {
    return Saturate(std::nearbyint(value));
}

int RoundHalfUp(double value) {
    return Saturate(std::floor(value + 0.5));
}

RectI Intersect(const RectI& a, const RectI& b) {
    // In 64 bits: hostile documents hold rectangles at the ends of int.
    const std::int64_t left = std::max(a.X, b.X);
    const std::int64_t top = std::max(a.Y, b.Y);
    const std::int64_t right = std::min(std::int64_t{a.X} + a.Width, std::int64_t{b.X} + b.Width);
    const std::int64_t bottom =
        std::min(std::int64_t{a.Y} + a.Height, std::int64_t{b.Y} + b.Height);
    if (right <= left || bottom <= top)
        return {};
    return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
            static_cast<int>(bottom - top)};
}

RectI Unite(const RectI& a, const RectI& b) {
    if (a.IsEmpty())
        return b;
    if (b.IsEmpty())
        return a;
    const int left = std::min(a.X, b.X);
    const int top = std::min(a.Y, b.Y);
    const int right = std::max(a.X + a.Width, b.X + b.Width);
    const int bottom = std::max(a.Y + a.Height, b.Y + b.Height);
    return {left, top, right - left, bottom - top};
}

RectI BoxAround(std::span<const RectI> rects) {
    RectI box;
    for (const RectI& rect : rects)
        box = Unite(box, rect);
    return box;
}

}  // namespace orbelle::graphics
