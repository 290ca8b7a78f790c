// The step that every edit begins with.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// TruncateRedo, then PushSnapshot. Throws document::HistoryLimit when the history is full.
inline void BeginUndoStep(Editor& editor) {
    editor.History.CheckRoom(editor.Document);
    editor.History.TruncateRedo();
    editor.History.PushSnapshot(editor.Document);
}

}  // namespace orbelle::editing
