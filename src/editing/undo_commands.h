// Undo and redo.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Each does nothing when there is nothing to take back or to do again.
void Undo(Editor& editor);
void Redo(Editor& editor);

}  // namespace orbelle::editing
