#include "editing/layer_bar.h"

#include "editing/layer_commands.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"

namespace orbelle::editing {
namespace {

// No undo step (docs/oddities.md, "Without undo").
void HideOrShowLayer(Editor& editor, int index) {
    if (index < 0 || index >= editor.Page().LayerCount())
        return;
    document::IconLayer& layer = editor.Page().Layers[static_cast<std::size_t>(index)];
    layer.Visible = !layer.Visible;
    NoteStack(editor.Changed);
}

}  // namespace

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
    HideOrShowLayer(editor, editor.Page().SelectedLayer);
}

void PressEye(Editor& editor, int layer) {
    if (layer == editor.Page().SelectedLayer)
        EndSelection(editor);
    HideOrShowLayer(editor, layer);
}

void PressMergeDown(Editor& editor) {
    EndSelection(editor);
    MergeDown(editor);
}

}  // namespace orbelle::editing
