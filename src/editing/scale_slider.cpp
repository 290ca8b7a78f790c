// The scale slider.
#include <algorithm>

#include "editing/adjust_sliders.h"
#include "editing/tips.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using graphics::Bitmap;
using graphics::RectF;

namespace {

constexpr int kSmallestSide = 1;

// The longer side grows by `step`, the shorter one follows in proportion.
void ScaleRect(RectF& rect, const RectF& start, int step) {
    const double width = start.Width;
    const double height = start.Height;
    if (width <= height && height != 0) {
        rect.Width = static_cast<float>(step * (width / height) + start.Width);
        rect.Height = static_cast<float>(step) + start.Height;
    } else if (width > height && width != 0) {
        rect.Height = static_cast<float>(step * (height / width) + start.Height);
        rect.Width = static_cast<float>(step) + start.Width;
    }
    rect.Width = std::max(rect.Width, float{kSmallestSide});
    rect.Height = std::max(rect.Height, float{kSmallestSide});
}

// The picture drawn anew, as large as the layer is now; a size that no bitmap has leaves it as it
// is.
void Resample(document::IconLayer& layer, int width, int height) {
    Bitmap scaled(width, height);
    if (scaled.IsEmpty())
        return;
    graphics::DrawingContext context(scaled);
    context.SetInterpolationMode(graphics::InterpolationMode::HighQuality);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.DrawImageRect(CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight),
                          {0, 0, static_cast<float>(width), static_cast<float>(height)});
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
    const int width = std::max(graphics::RoundToEven(layer.Rect.Width), kSmallestSide);
    const int height = std::max(graphics::RoundToEven(layer.Rect.Height), kSmallestSide);
    Resample(layer, width, height);
    layer.ImageWidth = width;
    layer.ImageHeight = height;
    layer.Rect.Width = static_cast<float>(width);
    layer.Rect.Height = static_cast<float>(height);
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
