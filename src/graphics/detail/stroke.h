// The outline of a thick line.
#pragma once

#include <vector>

#include "graphics/enums.h"
#include "graphics/geometry.h"
#include "graphics/path.h"

namespace orbelle::graphics {

// What a pen of `width` pixels covers when it is drawn along the figure, to be filled by
// FillMode::Winding: with flat ends; mitres longer than ten times the width are bevelled. A pen
// wider than the shape leaves no hole. Equal points, or a point that is infinite or not a number,
// give nothing. Right for the pixels of `area`; what lies further away is cut off.
std::vector<FlatFigure> OutlineOfStroke(const FlatFigure& figure, double width, LineJoin join,
                                        const RectI& area);

}  // namespace orbelle::graphics
