// The scale slider.
#include "editing/adjust_sliders.h"
#include "editing/tips.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using graphics::Bitmap;
using graphics::RectF;

namespace {

// The shorter side follows the longer one by the ratio of the present Rect, which drifts a little
// over a long drag (docs/oddities.md, "Drifting proportions").
void ScaleRect(RectF& rect, const RectF& start, int step) {
    const double width = rect.Width;
    const double height = rect.Height;
    if (width <= height && height != 0) {
        rect.Width = static_cast<float>(step * (width / height) + start.Width);
        rect.Height = static_cast<float>(step) + start.Height;
    } else if (width > height && width != 0) {
        rect.Height = static_cast<float>(step * (height / width) + start.Height);
        rect.Width = static_cast<float>(step) + start.Width;
    }
}

// The picture drawn in the size of Rect; a size that no bitmap has leaves it as it is.
void Resample(document::IconLayer& layer) {
    Bitmap scaled(graphics::RoundToEven(layer.Rect.Width),
                  graphics::RoundToEven(layer.Rect.Height));
    if (scaled.IsEmpty())
        return;
    graphics::DrawingContext context(scaled);
    context.SetInterpolationMode(graphics::InterpolationMode::HighQuality);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.DrawImageRect(CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight),
                          {0, 0, layer.Rect.Width, layer.Rect.Height});
    layer.Image = scaled;
}

}  // namespace

void PressScale(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, steps::Scale);
    editor.Drag = ScaleDrag{editor.Page().Selected().Rect};
}

void ChangeScale(Editor& editor, int value) {
    const auto* drag = std::get_if<ScaleDrag>(&editor.Drag);
    if (!drag)
        return;
    Slider& slider = editor.Sliders.Scale;
    slider.Value = slider.Clamped(value);
    slider.Label = slider.Value - slider.Neutral;
    ScaleRect(editor.Page().Selected().Rect, drag->Before, slider.Label);
    editor.Changed.Pixels = true;
}

void ReleaseScale(Editor& editor) {
    if (!std::holds_alternative<ScaleDrag>(editor.Drag))
        return;
    document::IconLayer& layer = editor.Page().Selected();
    Resample(layer);
    layer.ImageWidth = graphics::RoundToEven(layer.Rect.Width);
    layer.ImageHeight = graphics::RoundToEven(layer.Rect.Height);
    layer.ScaleValue = 0;
    layer.BaseRect = layer.Rect;
    Slider& slider = editor.Sliders.Scale;
    slider.Value = slider.Neutral;
    slider.Label = 0;
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    editor.Drag = {};
    NoteStack(editor.Changed);
    editor.Changed.Tip = {tips::Adjusted};
}

}  // namespace orbelle::editing
