// The buttons of the layer bar. Each first ends the selection.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// An empty layer of the page's size above the selected one.
void PressAddLayer(Editor& editor);
void PressRemoveLayer(Editor& editor);
// Hides or shows the selected layer; no undo step (docs/oddities.md, "Without undo").
void PressHideLayer(Editor& editor);
// The same with any layer, counted from the bottom, by the eye in its row. What is selected stays;
// the selection ends only when it is that layer's.
void PressEye(Editor& editor, int layer);
void PressMergeDown(Editor& editor);

}  // namespace orbelle::editing
