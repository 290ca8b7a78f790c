#include "editing/adjust_sliders.h"

#include "editing/layer_pixels.h"
#include "editing/slider_positions.h"
#include "editing/tips.h"
#include "editing/undo_step.h"
#include "filters/color_adjustments.h"

namespace orbelle::editing {

using document::IconLayer;
using graphics::RoundToEven;

namespace {

// 0 to 350 for the slider's 0 to 100.
float HueOf(int slider) {
    return static_cast<float>(RoundToEven(slider * 3.5));
}

// -100 at 0, 0 at 40, 150 at 100.
int SaturationOf(int slider) {
    return slider < document::kNeutralSaturation ? RoundToEven((slider - 40) * 2.5)
                                                 : RoundToEven(slider * 2.5 - 100);
}

// 0.2 at 0, 1 at 50, 5 at 100.
double ContrastOf(int slider) {
    const double c = slider * 2;
    if (c == 100)
        return 1;
    return c > 100 ? (c - 100) / 25 + 1 : 1 / (5 - c / 25);
}

// -250 to 250.
double BrightnessOf(int slider) {
    return slider * 5.0 - 250;
}

// What an adjustment is made of. Brightness and contrast always work together.
struct AdjustmentParts {
    Slider Sliders::*Position;
    int IconLayer::*Field;
    steps::Name Step;
    void (*Filter)(graphics::Bitmap&, const Sliders&);
};

void FilterBrightnessContrast(graphics::Bitmap& image, const Sliders& sliders) {
    filters::BrightnessColor(image, ContrastOf(sliders.Contrast.Value),
                             BrightnessOf(sliders.Brightness.Value));
}

AdjustmentParts PartsOf(Adjustment adjustment) {
    switch (adjustment) {
        case Adjustment::Hue:
            return {&Sliders::Hue, &IconLayer::Hue, steps::Hue,
                    [](graphics::Bitmap& image, const Sliders& sliders) {
                        filters::HueColor(image, HueOf(sliders.Hue.Value));
                    }};
        case Adjustment::Saturation:
            return {&Sliders::Saturation, &IconLayer::Saturation, steps::Saturation,
                    [](graphics::Bitmap& image, const Sliders& sliders) {
                        filters::SaturationColor(image, SaturationOf(sliders.Saturation.Value));
                    }};
        case Adjustment::Brightness:
            return {&Sliders::Brightness, &IconLayer::Brightness, steps::Brightness,
                    FilterBrightnessContrast};
        case Adjustment::Contrast:
            break;
    }
    return {&Sliders::Contrast, &IconLayer::Contrast, steps::Contrast, FilterBrightnessContrast};
}

void EndDrag(Editor& editor) {
    editor.Drag = {};
    editor.Changed.Stack = true;
    editor.Changed.Tip = {tips::Adjusted};
}

}  // namespace

void PressOpacity(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, steps::Opacity);
    editor.Drag = OpacityDrag{};
}

void ChangeOpacity(Editor& editor, int value) {
    if (!std::holds_alternative<OpacityDrag>(editor.Drag))
        return;
    Slider& slider = editor.Sliders.Opacity;
    slider.Value = slider.Clamped(value);
    editor.Page().Selected().Opacity = static_cast<float>(slider.Value / 100.0);
    editor.Changed.Pixels = true;
}

void ReleaseOpacity(Editor& editor) {
    if (std::holds_alternative<OpacityDrag>(editor.Drag))
        EndDrag(editor);
}

void PressAdjustment(Editor& editor, Adjustment adjustment) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, PartsOf(adjustment).Step);
    editor.Drag = AdjustmentDrag{editor.Page().Selected().Image};
}

void ChangeAdjustment(Editor& editor, Adjustment adjustment, int value) {
    const auto* drag = std::get_if<AdjustmentDrag>(&editor.Drag);
    if (!drag)
        return;
    const AdjustmentParts parts = PartsOf(adjustment);
    Slider& slider = editor.Sliders.*parts.Position;
    slider.Value = slider.Clamped(value);
    slider.Label = slider.Value - slider.Neutral;
    FilterLayerPixels(editor, drag->Before,
                      [&](graphics::Bitmap& image) { parts.Filter(image, editor.Sliders); });
}

void ReleaseAdjustment(Editor& editor, Adjustment adjustment) {
    if (!std::holds_alternative<AdjustmentDrag>(editor.Drag))
        return;
    const AdjustmentParts parts = PartsOf(adjustment);
    editor.Page().Selected().*parts.Field = (editor.Sliders.*parts.Position).Value;
    EndDrag(editor);
}

}  // namespace orbelle::editing
