// What the drawing tools draw.
#pragma once

#include "editing/tools/tool_handlers.h"
#include "graphics/bitmap.h"
#include "graphics/enums.h"

namespace orbelle::editing {

// Draws the current tool's shape on `image`, which stands for the selected layer's picture: the
// line through the drag's points, or the shape from the press to the pointer. Shift alone makes its
// box a square of the longer side, which grows to the right and down whichever way the pointer
// went. A linear gradient without extent draws nothing. With mirror drawing (mirror.h) the mirror
// images, too.
void DrawShape(const Editor& editor, const StrokeDrag& drag, graphics::Bitmap& image,
               const Pointer& pointer, graphics::SmoothingMode smoothing);

// The box of that shape, page pixels; a line's from its first to its last pixel. The pencil has
// none.
graphics::RectF ShapeArea(const Editor& editor, const StrokeDrag& drag, const Pointer& pointer);

}  // namespace orbelle::editing
