// Quarter turns and mirror images of whole pictures.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::graphics {

enum class RotateFlipType {
    Rotate90FlipNone = 1,  // a quarter turn clockwise
    RotateNoneFlipX = 4,   // left and right exchanged
    Rotate90FlipX = 5,     // turned clockwise, then left and right exchanged: rows become columns
    RotateNoneFlipY = 6,   // top and bottom exchanged
};

// Turns the picture in place, pixel for pixel, colours under alpha 0 included; its format stays. A
// quarter turn exchanges width and height. An empty bitmap stays empty.
void ImageRotateFlip(Bitmap& image, RotateFlipType type);

}  // namespace orbelle::graphics
