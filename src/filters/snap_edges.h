// Shrinking that brings the straight edges of a picture onto whole pixels.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// The picture at a smaller size, each pixel the mean of what it covers, after its most prominent
// upright and level edges have been moved to the borders between pixels; what lies between them is
// stretched evenly. The ends of its solid part move first, then the edges, the strongest before the
// others. No edge moves by much more than half a pixel, except that pictures below
// kGrowBelowSize pixels rather grow: there the ends of the solid part move outward.
//
// Sizes above the picture's own are possible, but look coarse. An empty picture, and a size that no
// bitmap has, give an empty one.
graphics::Bitmap ShrinkSnapped(const graphics::Bitmap& picture, int width, int height);

inline constexpr int kGrowBelowSize = 32;

}  // namespace orbelle::filters
