#include "graphics/detail/pixel_set.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <new>

namespace orbelle::graphics {
namespace {

void Require(pixman_bool_t done) {
    if (!done)
        throw std::bad_alloc();
}

// The plane is a square about the origin.
int OnPlane(std::int64_t coordinate) {
    constexpr std::int64_t end = -kPlane.X;
    return static_cast<int>(std::clamp(coordinate, -end, end));
}

// Sets that were moved often reach further than the plane.
int Length(std::int64_t from, std::int64_t to) {
    return static_cast<int>(std::min<std::int64_t>(to - from, std::numeric_limits<int>::max()));
}

RectI FromBox(const pixman_box32_t& box) {
    return {box.x1, box.y1, Length(box.x1, box.x2), Length(box.y1, box.y2)};
}

}  // namespace

PixelSet::PixelSet(std::span<const RectI> rects) {
    std::vector<pixman_box32_t> boxes;
    boxes.reserve(rects.size());
    for (const RectI& rect : rects) {
        const pixman_box32_t box{OnPlane(rect.X), OnPlane(rect.Y), OnPlane(rect.Right()),
                                 OnPlane(rect.Bottom())};
        if (box.x1 < box.x2 && box.y1 < box.y2)
            boxes.push_back(box);
    }
    Require(pixman_region32_init_rects(&region_, boxes.data(), static_cast<int>(boxes.size())));
}

PixelSet::PixelSet(const PixelSet& other, int dx, int dy) : PixelSet() {
    Require(pixman_region32_copy(&region_, &other.region_));
    pixman_region32_translate(&region_, dx, dy);
}

PixelSet::PixelSet(const PixelSet& first, const PixelSet& second, CombineMode mode) : PixelSet() {
    switch (mode) {
        case CombineMode::Replace:
            break;
        case CombineMode::Intersect:
            Require(pixman_region32_intersect(&region_, &first.region_, &second.region_));
            break;
        case CombineMode::Union:
            Require(pixman_region32_union(&region_, &first.region_, &second.region_));
            break;
        case CombineMode::Xor: {
            const PixelSet onlyFirst(first, second, CombineMode::Exclude);
            const PixelSet onlySecond(second, first, CombineMode::Exclude);
            Require(pixman_region32_union(&region_, &onlyFirst.region_, &onlySecond.region_));
            break;
        }
        case CombineMode::Exclude:
            Require(pixman_region32_subtract(&region_, &first.region_, &second.region_));
            break;
    }
}

bool PixelSet::Contains(int x, int y) const {
    return pixman_region32_contains_point(&region_, x, y, nullptr);
}

RectI PixelSet::Bounds() const {
    return IsEmpty() ? RectI{} : FromBox(*pixman_region32_extents(&region_));
}

std::vector<RectI> PixelSet::Rects() const {
    int count = 0;
    const pixman_box32_t* boxes = pixman_region32_rectangles(&region_, &count);
    std::vector<RectI> rects(count);
    for (int i = 0; i < count; ++i)
        rects[i] = FromBox(boxes[i]);
    return rects;
}

}  // namespace orbelle::graphics
