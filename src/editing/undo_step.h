// The step that every edit begins with.
#pragma once

#include "editing/editor.h"
#include "editing/step_names.h"

namespace orbelle::editing {

// TruncateRedo, then PushSnapshot, as often as the edit counts. Throws document::HistoryLimit, with
// nothing changed, when not all of these steps fit.
inline void BeginUndoStep(Editor& editor, steps::Name name, int count = 1) {
    editor.History.CheckRoom(count);
    editor.History.TruncateRedo();
    for (int i = 0; i < count; ++i)
        editor.History.PushSnapshot(editor.Document, name);
}

// The same for an edit after which the page of that size is in force.
inline void BeginUndoStepTo(Editor& editor, steps::Name name, int pageAfter) {
    editor.History.CheckRoom();
    editor.History.TruncateRedo();
    editor.History.PushSnapshot(editor.Document, name, pageAfter);
}

}  // namespace orbelle::editing
