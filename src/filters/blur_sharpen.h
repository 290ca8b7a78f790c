// Blur and sharpen: filters that look at the eight neighbours of a pixel.
//
// All of them work in place in one pass, row by row from the top left, and read what they have
// already rewritten: that feedback to the right and downward is part of their strength
// (docs/oddities.md, "Blur runs on"). An empty bitmap stays empty. `level` is a strength from 0 to
// 100, what lies beyond is taken as the nearer end.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Strengths of the commands.
inline constexpr int kBlurLevel = 90;
inline constexpr int kSharpenLevel = 80;

// The mean of the pixel, 101 - level times, and its visible neighbours, without those at the top
// left and bottom right; rounded, ties to even. Alpha stays; transparent pixels take part as the
// centre, not as neighbours.
void Soften(graphics::Bitmap& image, int level);

// ((109 - level) c - the sum of the eight neighbours) / (101 - level), within 0 to 255, rounded
// down. Alpha and the border pixels stay. Level 100 is the strongest.
void Sharpen(graphics::Bitmap& image, int level);

}  // namespace orbelle::filters
