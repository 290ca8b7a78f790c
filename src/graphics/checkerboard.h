// The pattern that stands for nothing behind a picture.
#pragma once

#include "graphics/bitmap.h"
#include "graphics/geometry.h"

namespace orbelle::graphics {

inline constexpr int kCheckerCell = 5;  // pixels a side, whatever the zoom

// Sets the pixels of the area, as far as it lies in the target, to cells of the two colours in
// turn, the first one in the area's top left corner.
void DrawCheckerboard(Bitmap& target, const RectI& area, Argb first, Argb second);

}  // namespace orbelle::graphics
