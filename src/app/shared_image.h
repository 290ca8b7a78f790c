// Our bitmaps as the toolkit's images.
#pragma once

#include <QImage>

#include "graphics/bitmap.h"

namespace orbelle::app {

// An image of the same pixels, which it shares and keeps alive. Null for an empty bitmap.
QImage SharedImage(const graphics::Bitmap& bitmap);

}  // namespace orbelle::app
