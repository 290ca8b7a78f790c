#include "editing/undo_commands.h"

#include "editing/page_commands.h"
#include "editing/size_commands.h"
#include "editing/slider_positions.h"

namespace orbelle::editing {
namespace {

// The adjustment sliders as they stand belong to the state that Redo returns to.
void KeepSliderPositions(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    document::IconLayer& layer = editor.Page().Selected();
    layer.Brightness = editor.Sliders.Brightness.Value;
    layer.Contrast = editor.Sliders.Contrast.Value;
    layer.Hue = editor.Sliders.Hue.Value;
    layer.Saturation = editor.Sliders.Saturation.Value;
}

// `pageBefore`: what was in force.
void ShowRestored(Editor& editor, int pageBefore) {
    if (editor.Document.EditedSize != pageBefore)
        return ShowPageInForce(editor);
    ShowSelectedLayer(editor);
    FollowPageSize(editor);
    NoteStack(editor.Changed);
}

}  // namespace

void Undo(Editor& editor) {
    if (editor.History.UndoIndex() == 0)
        return;
    KeepSliderPositions(editor);
    const int page = editor.Document.EditedSize;
    editor.History.Undo(editor.Document);
    ShowRestored(editor, page);
}

void Redo(Editor& editor) {
    const int page = editor.Document.EditedSize;
    if (editor.History.Redo(editor.Document))
        ShowRestored(editor, page);
}

}  // namespace orbelle::editing
