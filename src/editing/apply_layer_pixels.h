// A pixel filter run on a copy of a picture, for the selected layer.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

enum class PixelFilter {
    Hue = 0,                 // by Hue
    BrightnessContrast = 1,  // by Brightness and Contrast, both at once
    Saturation = 2,          // by Saturation
    PencilEraser = 3,        // at (x, y)
    Sharpen = 4,
    BrushEraser = 5,  // at (x, y), by BrushSize (size) and BrushOpacity (opacity)
};

// Filters a copy of `source`, cut to the layer's ImageWidth x ImageHeight, and makes it the
// selected layer's picture; (x, y) in that picture's pixels. Then composes. Needs a selected layer.
void ApplyLayerPixels(Editor& editor, PixelFilter filter, const graphics::Bitmap& source,
                      float x = 0, float y = 0);

}  // namespace orbelle::editing
