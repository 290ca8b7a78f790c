#include "editing/adjust_sliders.h"

#include <algorithm>

#include "editing/apply_layer_pixels.h"
#include "editing/command_frame.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"

namespace orbelle::editing {

using document::IconLayer;

namespace {

// What an adjustment is made of.
struct AdjustmentParts {
    Slider Controls::*Position;
    std::string Controls::*Label;
    int Rest;  // the label shows the position less this
    PixelFilter Filter;
    int IconLayer::*Field;
};

AdjustmentParts PartsOf(Adjustment adjustment) {
    switch (adjustment) {
        case Adjustment::Hue:
            return {&Controls::Hue, &Controls::HueValue, 0, PixelFilter::Hue, &IconLayer::Hue};
        case Adjustment::Saturation:
            return {&Controls::Saturation, &Controls::SaturationValue, 40, PixelFilter::Saturation,
                    &IconLayer::Saturation};
        case Adjustment::Brightness:
            return {&Controls::Brightness, &Controls::BrightnessValue, 50,
                    PixelFilter::BrightnessContrast, &IconLayer::Brightness};
        case Adjustment::Contrast:
            break;
    }
    return {&Controls::Contrast, &Controls::ContrastValue, 50, PixelFilter::BrightnessContrast,
            &IconLayer::Contrast};
}

void EndDrag(Editor& editor) {
    editor.Host.LayerPanelChanged();
    editor.Host.ShowTips(tips::Adjusted);
    editor.Host.ControlsChanged();
}

}  // namespace

void PressOpacity(Editor& editor) {
    if (editor.Document.HasSelection())
        RunCommand(editor, [&] { BeginUndoStep(editor); });
}

void ChangeOpacity(Editor& editor, int value) {
    if (!editor.Document.HasSelection())
        return;
    editor.Controls.Opacity.Value = std::clamp(value, 0, 100);
    editor.Document.Selected().Opacity = static_cast<float>(editor.Controls.Opacity.Value / 100.0);
    Compose(editor);
}

void ReleaseOpacity(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    Compose(editor);
    EndDrag(editor);
}

void PressAdjustment(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] {
        BeginUndoStep(editor);
        editor.AdjustSnapshot = editor.Document.Selected().Image;
    });
}

void ChangeAdjustment(Editor& editor, Adjustment adjustment, int value) {
    if (!editor.Document.HasSelection())
        return;
    const AdjustmentParts parts = PartsOf(adjustment);
    const int position = std::clamp(value, 0, 100);
    (editor.Controls.*parts.Position).Value = position;
    editor.Controls.*parts.Label = std::to_string(position - parts.Rest);
    ApplyLayerPixels(editor, parts.Filter, editor.AdjustSnapshot);
}

void ReleaseAdjustment(Editor& editor, Adjustment adjustment) {
    if (!editor.Document.HasSelection())
        return;
    const AdjustmentParts parts = PartsOf(adjustment);
    editor.Document.Selected().*parts.Field = (editor.Controls.*parts.Position).Value;
    editor.AdjustSnapshot = {};
    DrawScene(editor);
    EndDrag(editor);
}

}  // namespace orbelle::editing
