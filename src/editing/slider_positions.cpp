#include "editing/slider_positions.h"

#include <algorithm>

namespace orbelle::editing {

void SetAdjustSliders(Editor& editor, int hue, int brightness, int saturation, int contrast) {
    Sliders& sliders = editor.Sliders;
    sliders.Hue.Value = hue;
    sliders.Brightness.Value = brightness;
    sliders.Saturation.Value = saturation;
    sliders.Contrast.Value = contrast;
    sliders.Hue.Label = hue;
    for (Slider* slider : {&sliders.Brightness, &sliders.Saturation, &sliders.Contrast})
        slider->Label = 0;
}

void SetAdjustSlidersNeutral(Editor& editor) {
    SetAdjustSliders(editor, document::kNeutralHue, document::kNeutralBrightness,
                     document::kNeutralSaturation, document::kNeutralContrast);
}

void ShowSelectedLayer(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    const document::IconLayer& layer = editor.Page().Selected();
    editor.Sliders.Opacity.Value = graphics::RoundToEven(layer.Opacity * 100.0);
    Slider& scale = editor.Sliders.Scale;
    scale.Label = layer.ScaleValue;
    // A file may hold any scale.
    scale.Value =
        scale.Clamped(std::clamp(scale.Label, -scale.Neutral, scale.Neutral) + scale.Neutral);
    SetAdjustSliders(editor, layer.Hue, layer.Brightness, layer.Saturation, layer.Contrast);
}

}  // namespace orbelle::editing
