#include "editing/undo_commands.h"

#include "editing/command_frame.h"
#include "editing/layer_commands.h"
#include "editing/view_commands.h"

namespace orbelle::editing {
namespace {

Button& UndoButton(Editor& editor) {
    return editor.Controls.MainBar[main_buttons::Undo];
}

Button& RedoButton(Editor& editor) {
    return editor.Controls.MainBar[main_buttons::Redo];
}

// The adjustment sliders as they stand belong to the state that Redo returns to.
void KeepSliderPositions(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    document::IconLayer& layer = editor.Document.Selected();
    layer.Brightness = editor.Controls.Brightness.Value;
    layer.Contrast = editor.Controls.Contrast.Value;
    layer.Hue = editor.Controls.Hue.Value;
    layer.Saturation = editor.Controls.Saturation.Value;
}

void ShowRestoredStack(Editor& editor) {
    Controls& controls = editor.Controls;
    const document::Document& document = editor.Document;
    const bool selected = document.HasSelection();
    if (selected) {
        ShowLayerAdjust(editor, document.SelectedLayer);
        ShowLayerSliders(editor);
    }
    EnableLayerSliders(editor);
    controls.MainBar[main_buttons::Save].Enabled = document.LayerCount() >= 1;
    UndoButton(editor).Enabled = editor.History.UndoIndex() >= 1;
    RedoButton(editor).Enabled = editor.History.RedoCount() >= 1;
    controls.m_Undo.Enabled = UndoButton(editor).Enabled;
    controls.m_Redo.Enabled = RedoButton(editor).Enabled;
    controls.LayerBar[layer_buttons::Remove].Enabled = selected;
    controls.LayerBar[layer_buttons::Hide] = {selected, selected && document.Selected().Visible};
    controls.LayerBar[layer_buttons::SetOrder].Enabled = document.SelectedLayer >= 2;
    controls.LayerBar[layer_buttons::MergeDown].Enabled = document.SelectedLayer >= 1;
    Compose(editor);
    editor.Host.LayerPanelChanged();
}

}  // namespace

void BeginUndoStep(Editor& editor) {
    editor.History.CheckRoom(editor.Document);
    editor.History.TruncateRedo();
    RedoButton(editor).Enabled = false;
    editor.Controls.m_Redo.Enabled = false;
    editor.History.PushSnapshot(editor.Document);
    UndoButton(editor).Enabled = true;
    editor.Controls.m_Undo.Enabled = true;
}

void Undo(Editor& editor) {
    if (!UndoButton(editor).Enabled)
        return;
    RunCommand(editor, [&] {
        KeepSliderPositions(editor);
        if (editor.History.Undo(editor.Document))
            ShowRestoredStack(editor);
    });
}

void Redo(Editor& editor) {
    if (!RedoButton(editor).Enabled)
        return;
    RunCommand(editor, [&] {
        if (editor.History.Redo(editor.Document))
            ShowRestoredStack(editor);
    });
}

}  // namespace orbelle::editing
