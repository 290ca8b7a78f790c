// Every picture that a file shows, at all its sizes: for comparing files.
#pragma once

#include <filesystem>
#include <vector>

#include "graphics/bitmap.h"

namespace orbelle::formats {

// By rising longer side, in pixels. An icon's images, of those of the same size the one with more
// bits, then the first; a document's pages with its background, artwork before a master of the same
// size; the picture of another file, a drawing with a longer side of `svgSide` pixels. Throws Error
// for a file that can't be read, or any part of which is damaged.
std::vector<graphics::Bitmap> PicturesOfFile(const std::filesystem::path& path, int svgSide);

}  // namespace orbelle::formats
