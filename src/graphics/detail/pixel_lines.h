// Lines of one pixel's thickness.
#pragma once

#include <span>
#include <vector>

#include "graphics/geometry.h"

namespace orbelle::graphics {

// The pixels of the lines from point to point within the rectangles of `clip` (which do not
// overlap), each pixel once, as one-row rectangles. The centre of pixel (i, j) is (i + offset, j +
// offset). A line goes from the pixel nearest to its start to the one nearest to its end, both
// included, one pixel a step along its longer axis, ties of the other coordinate to the larger one
// whichever way it runs. Two equal points give nothing. Coordinates beyond 1e9 count as 1e9; a
// point that is infinite or not a number leaves nothing of all the lines. Takes time for the points
// and for the columns or rows that each line crosses within the clip's box.
std::vector<RectI> PixelsOfLines(std::span<const PointF> points, double offset,
                                 std::span<const RectI> clip);

}  // namespace orbelle::graphics
