// The pixels of many shapes that lie on each other, a bit each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graphics/geometry.h"

namespace orbelle::graphics {

class PixelUnion {
public:
    // Whether the bits of an area are well spent on so many shapes.
    static bool IsWorthwhile(const RectI& area, std::size_t shapes);

    explicit PixelUnion(const RectI& area);

    // The rectangle's part in the area.
    void Add(const RectI& rect);
    // Whether no pixel of the rectangle's part in the area is missing: what lies in there adds
    // nothing.
    bool Covers(const RectI& rect) const;
    bool IsWhole() const { return missing_ == 0; }
    // A rectangle for each run of pixels in a row, by y and then x.
    std::vector<RectI> Rects() const;

private:
    std::uint64_t* Row(int row) { return words_.data() + wordsPerRow_ * row; }
    const std::uint64_t* Row(int row) const { return words_.data() + wordsPerRow_ * row; }

    RectI area_;
    std::size_t wordsPerRow_;
    std::vector<std::uint64_t> words_;  // columns beyond the area are set
    std::vector<int> missingInRow_;
    std::int64_t missing_;
};

}  // namespace orbelle::graphics
