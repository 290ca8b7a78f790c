// A gradient from a point to the outline around it.
#pragma once

#include <vector>

#include "graphics/color.h"
#include "graphics/geometry.h"
#include "graphics/path.h"

namespace orbelle::graphics {

// At a point P of the ray from CenterPoint C to the outline's point Q, |CP| / |CQ| of the way from
// CenterColor to SurroundColor, premultiplied. Outside the outline, whose right and bottom edges
// count as outside, SurroundColor goes on.
struct PathGradientBrush {
    Path Outline;
    Argb CenterColor = 0;
    PointF CenterPoint;
    Argb SurroundColor = 0;

    // The straight colours of the pixels of `area`, row by row: at the pixel's centre (x + offset,
    // y + offset). Where a ray meets the outline more than once, the last edge in the outline's
    // order counts. Figures or centres that are not finite count as an empty outline.
    std::vector<Argb> ColorsOf(const RectI& area, double offset) const;
};

}  // namespace orbelle::graphics
