// Styles that change pictures in place: Mac, Irradiation, Blur, Sharpen and the two states.
#include "editing/layer_pixels.h"
#include "editing/style_commands.h"
#include "editing/tips.h"
#include "editing/undo_step.h"
#include "filters/blur_sharpen.h"
#include "filters/color_adjustments.h"
#include "filters/radial_light.h"
#include "filters/state_looks.h"

namespace orbelle::editing {

using graphics::Bitmap;

namespace {

// One undo step, then the change, then the scene and the panel anew.
template <typename Change>
void ChangeInPlace(Editor& editor, steps::Name step, Change change) {
    BeginUndoStep(editor, step);
    change();
    NoteStack(editor.Changed);
}

template <typename Change>
void ChangeSelected(Editor& editor, steps::Name step, Change change) {
    if (editor.Page().HasSelection())
        ChangeInPlace(editor, step, [&] { change(editor.Page().Selected().Image); });
}

template <typename Change>
void ChangeAll(Editor& editor, steps::Name step, Change change) {
    if (editor.Page().LayerCount() < 1)
        return;
    ChangeInPlace(editor, step, [&] {
        for (document::IconLayer& layer : editor.Page().Layers)
            change(layer);
        editor.Changed.Tip = {tips::Adjusted};
    });
}

}  // namespace

void Mac(Editor& editor) {
    ChangeSelected(editor, steps::Mac, [&](Bitmap& image) {
        filters::SaturationColor(image, -25);
        filters::Soften(image, filters::kBlurLevel);
        filters::ThreeDStyle(image, filters::kGentleLight);
        editor.Changed.Tip = {tips::Adjusted};
    });
}

void Irradiation(Editor& editor) {
    ChangeSelected(editor, steps::Irradiation, [&](Bitmap& image) {
        filters::ThreeDStyle(image, filters::kStrongLight);
        editor.Changed.Tip = {tips::Adjusted};
    });
}

void Blur(Editor& editor) {
    ChangeSelected(editor, steps::Blur,
                   [](Bitmap& image) { filters::Soften(image, filters::kBlurLevel); });
}

void Sharpen(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, steps::Sharpen);
    FilterLayerPixels(editor, editor.Page().Selected().Image,
                      [](Bitmap& image) { filters::Sharpen(image, filters::kSharpenLevel); });
    editor.Changed.Stack = true;
}

void DisabledState(Editor& editor) {
    constexpr float kLighten = 0.5F;
    ChangeAll(editor, steps::DisabledState, [](document::IconLayer& layer) {
        filters::DisabledStyle(layer.Image, layer.ImageWidth, layer.ImageHeight);
        filters::HotStyle(layer.Image, layer.ImageWidth, layer.ImageHeight, kLighten);
    });
}

void HotState(Editor& editor) {
    constexpr float kLighten = 0.65F;
    ChangeAll(editor, steps::HotState, [](document::IconLayer& layer) {
        filters::HotStyle(layer.Image, layer.ImageWidth, layer.ImageHeight, kLighten);
    });
}

}  // namespace orbelle::editing
