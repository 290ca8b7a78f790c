// The sliders of the layer panels: press, change, release.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// One drag of the opacity slider is one undo step, taken at the press. `value` is 0 to 100.
void PressOpacity(Editor& editor);
void ChangeOpacity(Editor& editor, int value);
void ReleaseOpacity(Editor& editor);

}  // namespace orbelle::editing
