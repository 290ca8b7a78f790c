// The sliders of the layer panels take the places of a layer.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Sets the adjustment sliders; all labels but the hue's read 0 whatever they hold
// (docs/oddities.md, "Labels at 0").
void SetAdjustSliders(Editor& editor, int hue, int brightness, int saturation, int contrast);
void SetAdjustSlidersNeutral(Editor& editor);

// All six from the selected layer; with none selected they keep their places.
void ShowSelectedLayer(Editor& editor);

}  // namespace orbelle::editing
