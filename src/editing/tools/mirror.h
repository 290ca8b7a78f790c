// Mirror drawing: a tool's mark and its mirror images, left and right and top and bottom of the
// page's middle exchanged. Page pixel x is mirrored to width - 1 - x, also where it lies beside the
// layer or the page. Where a mark meets its images the stronger counts, so that the marks are as
// symmetric as the page and no darker where they meet.
#pragma once

#include <functional>

#include "editing/editor.h"

namespace orbelle::editing {

// Draws a mark and its images on `image`, the selected layer's picture. `draw` draws the mark on a
// transparent picture whose corner is the layer's pixel `origin`.
void DrawMirrored(const Editor& editor, graphics::Bitmap& image,
                  const std::function<void(graphics::Bitmap&, graphics::PointF origin)>& draw);

// Runs an eraser at the layer's pixel `at` and at its images. `erase` lowers alphas and leaves the
// colours.
void EraseMirrored(const Editor& editor, graphics::Bitmap& image, graphics::PointF at,
                   const std::function<void(graphics::Bitmap&, int x, int y)>& erase);

}  // namespace orbelle::editing
