// The Style menu. Each command works on the selected layer and does nothing without one, but for
// the states, which change every layer.
#pragma once

#include "editing/editor.h"
#include "filters/gloss_styles.h"

namespace orbelle::editing {

// On a layer of their own above the selected one, which is selected then.
void Crystal(Editor& editor);
void Vista(Editor& editor);  // also changes the picture below for good
void Fresh(Editor& editor);
void Origami(Editor& editor, filters::Fold fold);
void Reflection(Editor& editor);
void Shade(Editor& editor);

// On a layer of their own below the selected one, which is selected then.
void Ios(Editor& editor);
void DropShadow(Editor& editor);

// In the pictures of the layers themselves.
void Mac(Editor& editor);
void Irradiation(Editor& editor);
void Blur(Editor& editor);
void Sharpen(Editor& editor);
void DisabledState(Editor& editor);
void HotState(Editor& editor);

}  // namespace orbelle::editing
