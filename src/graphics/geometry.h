// Points and rectangles, and the two roundings that the editor uses.
#pragma once

#include <cmath>
#include <cstdint>
#include <span>

namespace orbelle::graphics {

struct PointF {
    float X = 0;
    float Y = 0;
    bool operator==(const PointF&) const = default;
};

struct SizeF {
    float Width = 0;
    float Height = 0;
    bool operator==(const SizeF&) const = default;
};

struct RectF {
    float X = 0;
    float Y = 0;
    float Width = 0;
    float Height = 0;
    bool operator==(const RectF&) const = default;
};

// Whole pixels; covers X to X + Width - 1.
struct RectI {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const RectI&) const = default;
    bool IsEmpty() const { return Width <= 0 || Height <= 0; }
    // Where it ends, in 64 bits: hostile documents hold rectangles at the ends of int.
    std::int64_t Right() const { return std::int64_t{X} + Width; }
    std::int64_t Bottom() const { return std::int64_t{Y} + Height; }
};

// Nearest whole number, ties to even, saturated at the ends of int; not-a-number gives 0.
int RoundToEven(double value);

// floor(value + 0.5), saturated at the ends of int: the rounding of the drawing operations.
int RoundHalfUp(double value);

// The part of both; empty (all zero) when they do not meet.
RectI Intersect(const RectI& a, const RectI& b);

// The smallest rectangle around both; an empty one counts for nothing. Where its width or height
// would be more than an int, it ends as far out as one reaches.
RectI Unite(const RectI& a, const RectI& b);
RectI BoxAround(std::span<const RectI> rects);

// The size that a picture has in a box: never enlarged, else the side that binds fills the box.
SizeF FitIntoBox(SizeF picture, SizeF box);

// Where a picture of this size stands in the middle of a box, halves dropped.
RectF CenterInBox(SizeF picture, SizeF box);

}  // namespace orbelle::graphics
