// What the dialog of the GIF export shows.
#pragma once

#include <cstdint>

#include "graphics/bitmap.h"
#include "graphics/drawing_context.h"
#include "graphics/geometry.h"

namespace orbelle::app {

// Where a picture goes in a preview box at (0, 0): centred, halves dropped; an axis on which it is
// larger than the box is squeezed to the box, each on its own.
graphics::RectF PreviewRect(const graphics::Bitmap& image, int boxWidth, int boxHeight);

// Draws the picture as a GIF with a transparent background and this threshold would show it, into
// its PreviewRect and with the context's own settings.
void DrawGifPreview(graphics::DrawingContext& context, const graphics::Bitmap& surface,
                    int boxWidth, int boxHeight, std::uint8_t threshold);

}  // namespace orbelle::app
