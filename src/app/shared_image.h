// Our bitmaps as the toolkit's images.
#pragma once

#include <QImage>

#include "graphics/bitmap.h"

namespace orbelle::app {

// An image of the same pixels, which it shares and keeps alive. Null for an empty bitmap.
// Format_RGB32 is for a bitmap that is opaque throughout.
QImage SharedImage(const graphics::Bitmap& bitmap, QImage::Format format = QImage::Format_ARGB32);

}  // namespace orbelle::app
