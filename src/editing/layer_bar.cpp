#include "editing/layer_bar.h"

#include "editing/layer_commands.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"

namespace orbelle::editing {

void PressAddLayer(Editor& editor) {
    EndSelection(editor);
    AddEmptyLayer(editor, static_cast<float>(editor.Page().Width),
                  static_cast<float>(editor.Page().Height));
}

void PressRemoveLayer(Editor& editor) {
    EndSelection(editor);
    DeleteLayer(editor);
}

void PressHideLayer(Editor& editor) {
    EndSelection(editor);
    if (!editor.Page().HasSelection())
        return;
    document::IconLayer& layer = editor.Page().Selected();
    layer.Visible = !layer.Visible;
    NoteStack(editor.Changed);
}

void PressMergeDown(Editor& editor) {
    EndSelection(editor);
    MergeDown(editor);
}

}  // namespace orbelle::editing
