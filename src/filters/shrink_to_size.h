// A picture at an icon's size, as the export makes it.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// The picture in the middle of a transparent size x size square: never enlarged, else scaled with
// high quality until its larger side fills the square.
graphics::Bitmap ShrinkToSize(const graphics::Bitmap& picture, int size);

// The picture itself where it fits into the box, else scaled in the same way until it does; a side
// is 1 pixel or more.
graphics::Bitmap ShrinkIntoBox(const graphics::Bitmap& picture, int width, int height);

}  // namespace orbelle::filters
