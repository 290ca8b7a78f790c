// Which pixels a shape covers when its edges are hard: those whose centre lies inside.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "graphics/enums.h"
#include "graphics/geometry.h"
#include "graphics/path.h"

namespace orbelle::graphics {

// The edges of an upright box in real numbers.
struct Edges {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
};

// The edges of a rectangle; right and bottom rounded as its own numbers are, so that 10.1 + 0.9
// ends at 11 and not a hair beyond.
Edges EdgesOf(const RectF& rect);

// The pixels of a box within `within`. The centre of pixel (i, j) is (i + offset, j + offset); one
// on a left or top edge is inside, on a right or bottom edge outside. Empty for inverted or
// not-a-number edges.
RectI PixelsInside(const Edges& edges, double offset, const RectI& within);

// The same for polygons (open figures count as closed), as one-row rectangles that neither overlap
// nor touch, by y and then x. A figure with a point that is infinite or not a number is left out.
// Takes time for the edges and for the rows of `within` that each edge crosses.
std::vector<RectI> PixelsInside(std::span<const FlatFigure> figures, FillMode fillMode,
                                double offset, const RectI& within);

// The same for one triangle; `runs` is replaced. Much quicker than a list of figures, for shapes
// that are cut into hundreds of triangles. Two that share a side share its crossings.
void PixelsInsideTriangle(const std::array<PointF, 3>& corners, double offset, const RectI& within,
                          std::vector<RectI>& runs);

// False when a point of the figure is infinite or not a number.
bool IsFinite(const FlatFigure& figure);

}  // namespace orbelle::graphics
