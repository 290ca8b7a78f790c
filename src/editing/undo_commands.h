// Undo and redo, and the step that every edit begins with.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// What every editing command does before it touches the stack: TruncateRedo, then PushSnapshot.
// Throws document::HistoryLimit, with nothing changed, when the history is full.
void BeginUndoStep(Editor& editor);

// Each only while its button is enabled.
void Undo(Editor& editor);
void Redo(Editor& editor);

}  // namespace orbelle::editing
