#include "graphics/geometry.h"

#include <algorithm>
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

// All zero when nothing lies between the edges; cut to the longest side an int holds.
RectI FromEdges(int left, int top, std::int64_t right, std::int64_t bottom) {
    constexpr std::int64_t longest = std::numeric_limits<int>::max();
    if (right <= left || bottom <= top)
        return {};
    return {left, top, static_cast<int>(std::min(right - left, longest)),
            static_cast<int>(std::min(bottom - top, longest))};
}

}  // namespace

int RoundToEven(double value) {
    return Saturate(std::nearbyint(value));
}

int RoundHalfUp(double value) {
    return Saturate(std::floor(value + 0.5));
}

RectI Intersect(const RectI& a, const RectI& b) {
    return FromEdges(std::max(a.X, b.X), std::max(a.Y, b.Y), std::min(a.Right(), b.Right()),
                     std::min(a.Bottom(), b.Bottom()));
}

RectI Unite(const RectI& a, const RectI& b) {
    if (a.IsEmpty())
        return b;
    if (b.IsEmpty())
        return a;
    return FromEdges(std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.Right(), b.Right()),
                     std::max(a.Bottom(), b.Bottom()));
}

RectI BoxAround(std::span<const RectI> rects) {
    RectI box;
    for (const RectI& rect : rects)
        box = Unite(box, rect);
    return box;
}

SizeF FitIntoBox(SizeF picture, SizeF box) {
    if (picture.Width <= box.Width && picture.Height <= box.Height)
        return picture;
    const float rx = box.Width / picture.Width;
    const float ry = box.Height / picture.Height;
    return rx < ry ? SizeF{box.Width, rx * picture.Height} : SizeF{ry * picture.Width, box.Height};
}

RectF CenterInBox(SizeF picture, SizeF box) {
    const int x = RoundToEven(box.Width - picture.Width) / 2;
    const int y = RoundToEven(box.Height - picture.Height) / 2;
    return {static_cast<float>(x), static_cast<float>(y), picture.Width, picture.Height};
}

}  // namespace orbelle::graphics
