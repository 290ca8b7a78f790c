// The rounded plate: a rectangle with curved corners, as a path.
#pragma once

#include "graphics/path.h"

namespace orbelle::filters {

// Eight Bézier segments from (x, y) over width x height. A side shorter than twice the radius is
// overshot. Half the radius is a whole number at the top right, so that odd radii give that corner
// another curve than the rest (docs/oddities.md, "The plate's corners").
graphics::Path RoundShape(float x, float y, float width, float height, int radius);

// The plate under a picture: the radius is a sixth of the smaller side, remainder dropped.
graphics::Path IosPlatePath(int width, int height, float x, float y);

}  // namespace orbelle::filters
