// Two icons and what differs between them, as one picture for people.
#pragma once

#include <span>

#include "formats/icon_diff.h"
#include "graphics/bitmap.h"

namespace orbelle::formats {

// A row for every size: A, B, and on a faint B the pixels that differ in red, the stronger the
// more. Small pictures are enlarged pixel by pixel, large ones shrunk. Throws Error when there are
// more sizes than a bitmap has room for.
graphics::Bitmap DrawDiffSheet(std::span<const SizePair> pairs);

}  // namespace orbelle::formats
