#include "editing/layer_commands.h"

#include <algorithm>

#include "document/layer_slots.h"
#include "editing/clipboard_commands.h"
#include "editing/command_frame.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"

namespace orbelle::editing {

void InsertEmptyLayer(Editor& editor, float width, float height) {
    document::IconLayer& layer =
        document::OpenLayerSlot(editor.Document, document::SlotCopySize::Rect);
    document::MakeEmptyLayer(editor.Document, layer, width, height);
    editor.Host.LayerPanelChanged();
    ShowSelectedLayer(editor);
}

void AddEmptyLayer(Editor& editor, float width, float height) {
    BeginUndoStep(editor);
    InsertEmptyLayer(editor, width, height);
}

void AddLayerCommand(Editor& editor) {
    RunCommand(editor, [&] {
        EndSelection(editor);
        AddEmptyLayer(editor, static_cast<float>(editor.Document.PageWidth),
                      static_cast<float>(editor.Document.PageHeight));
        Compose(editor);
        editor.Host.LayerPanelChanged();
    });
}

void SelectLayer(Editor& editor, int index) {
    AbandonDrag(editor);
    if (index != editor.Document.SelectedLayer)
        SetAdjustSliders(editor, 0, 50, 40, 50);
    editor.Document.SelectedLayer = index;
    ShowSelectedLayer(editor);
    editor.Host.LayerPanelChanged();
    DrawScene(editor);
    editor.Host.ControlsChanged();
}

void SetAdjustSliders(Editor& editor, int hue, int brightness, int saturation, int contrast) {
    Controls& controls = editor.Controls;
    controls.Hue.Value = hue;
    controls.Brightness.Value = brightness;
    controls.Saturation.Value = saturation;
    controls.Contrast.Value = contrast;
    controls.HueValue = std::to_string(hue);
    controls.BrightnessValue = "0";
    controls.SaturationValue = "0";
    controls.ContrastValue = "0";
}

void ShowLayerAdjust(Editor& editor, int index) {
    const document::IconLayer& layer = editor.Document.Layers[static_cast<std::size_t>(index)];
    SetAdjustSliders(editor, layer.Hue, layer.Brightness, layer.Saturation, layer.Contrast);
}

void ShowLayerSliders(Editor& editor) {
    const document::IconLayer& layer = editor.Document.Selected();
    editor.Controls.Opacity.Value = graphics::RoundToEven(layer.Opacity * 100.0);
    // A file may hold any scale.
    editor.Controls.Scale.Value = std::clamp(layer.ScaleValue, -50, 50) + 50;
    editor.Controls.ScaleValue = std::to_string(layer.ScaleValue);
}

void ShowSelectedLayer(Editor& editor) {
    if (editor.Document.HasSelection()) {
        ShowLayerSliders(editor);
        ShowLayerAdjust(editor, editor.Document.SelectedLayer);
    }
    EnableLayerSliders(editor);
    UpdateLayerButtons(editor);
}

void EnableLayerSliders(Editor& editor) {
    Controls& controls = editor.Controls;
    for (Slider* slider : {&controls.Opacity, &controls.Hue, &controls.Saturation,
                           &controls.Brightness, &controls.Contrast, &controls.Scale})
        slider->Enabled = editor.Document.HasSelection();
}

void UpdateLayerButtons(Editor& editor) {
    const document::Document& document = editor.Document;
    auto& buttons = editor.Controls.LayerBar;
    const bool selected = document.HasSelection();
    const bool visible = selected && document.Selected().Visible;
    buttons[layer_buttons::Remove].Enabled = selected;
    buttons[layer_buttons::Hide].Enabled = selected;
    buttons[layer_buttons::Hide].Pressed = visible;
    buttons[layer_buttons::SetOrder].Enabled = visible && document.LayerCount() >= 2;
    buttons[layer_buttons::MergeDown].Enabled = visible && document.SelectedLayer >= 1;
}

}  // namespace orbelle::editing
