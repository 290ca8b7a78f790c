// Erasers: they lower alpha and leave the colours.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Alpha of the pixel (x, y) becomes 0. Outside the picture nothing changes.
void EraseColor(graphics::Bitmap& image, int x, int y);

// One stamp of the soft brush: alpha falls by 5 x `level` in the centre (x, y) and by nothing at
// the rim. The radius is 1.5 x `size`, rounded, ties to even. `size` is 1 to 100, `level` 0 to 50;
// other numbers are safe. Any place, also outside the picture; a picture one pixel wide or high is
// left alone (docs/oddities.md, "One pixel wide"). The time is proportional to the part of the
// brush inside the picture.
void EraseTool(graphics::Bitmap& image, int x, int y, int size, int level);

}  // namespace orbelle::filters
