// The buttons of the layer bar. Each first ends the selection.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// An empty layer of the page's size above the selected one.
void PressAddLayer(Editor& editor);
void PressRemoveLayer(Editor& editor);
// Hides or shows the selected layer; no undo step (docs/oddities.md, "Without undo").
void PressHideLayer(Editor& editor);
void PressMergeDown(Editor& editor);

}  // namespace orbelle::editing
