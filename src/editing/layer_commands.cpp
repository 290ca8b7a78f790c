#include "editing/layer_commands.h"

#include "document/layer_slots.h"
#include "editing/slider_positions.h"
#include "editing/undo_step.h"

namespace orbelle::editing {

void InsertEmptyLayer(Editor& editor, float width, float height) {
    document::IconLayer& layer =
        document::OpenLayerSlot(editor.Page(), document::SlotCopySize::Rect);
    document::MakeEmptyLayer(editor.Page(), layer, width, height);
    ShowSelectedLayer(editor);
    NoteStack(editor.Changed);
}

void AddEmptyLayer(Editor& editor, float width, float height) {
    BeginUndoStep(editor, steps::AddLayer);
    InsertEmptyLayer(editor, width, height);
}

void SelectLayer(Editor& editor, int index) {
    document::Page& page = editor.Page();
    if (index < 0 || index >= page.LayerCount())
        return;
    page.SelectedLayer = index;
    ShowSelectedLayer(editor);
    editor.Changed.Stack = true;
    editor.Changed.Scene = true;
}

}  // namespace orbelle::editing
