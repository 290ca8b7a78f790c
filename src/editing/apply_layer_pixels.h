// A pixel filter run on a copy of a picture, for the selected layer.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

enum class PixelFilter {
    Hue = 0,                 // by HUEscroll
    BrightnessContrast = 1,  // by BrightnessScroll and ContrastScroll, both at once
    Saturation = 2,          // by SaturationScroll
    PencilEraser = 3,        // at (x, y)
    Smooth = 4,              // no command asks for it
    Sharpen = 5,
    BrushEraser = 6,  // at (x, y), by CtlScroll23 (size) and CtlScroll22 (opacity)
};

// Filters a copy of `source`, cut to the layer's ImageWidth x ImageHeight, and makes it the
// selected layer's picture; (x, y) in that picture's pixels. Then composes. Needs a selected layer.
void ApplyLayerPixels(Editor& editor, PixelFilter filter, const graphics::Bitmap& source,
                      float x = 0, float y = 0);

}  // namespace orbelle::editing
