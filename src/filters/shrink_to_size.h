// A picture at an icon's size, as the export makes it.
#pragma once

#include "graphics/bitmap.h"
#include "graphics/geometry.h"

namespace orbelle::filters {

// The picture in the middle of a transparent size x size square: never enlarged, else scaled with
// high quality until its larger side fills the square.
graphics::Bitmap ShrinkToSize(const graphics::Bitmap& picture, int size);

// The picture itself where it fits into the box, else scaled in the same way until it does; a side
// is 1 pixel or more.
graphics::Bitmap ShrinkIntoBox(const graphics::Bitmap& picture, int width, int height);

// Where in the square it puts a picture of that size.
graphics::RectF PlaceOfShrunk(int width, int height, int size);

// The same, but a smaller picture is enlarged, with high quality, until it fills the square, too.
graphics::Bitmap ScaleToSize(const graphics::Bitmap& picture, int size);

// The picture scaled like that, without the square: its larger side is `side`, the other at least
// one pixel.
graphics::Bitmap ScaleToSide(const graphics::Bitmap& picture, int side);

}  // namespace orbelle::filters
