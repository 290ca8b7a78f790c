// The scale slider.
#include <algorithm>

#include "editing/adjust_sliders.h"
#include "editing/command_frame.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "filters/create_region.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using graphics::Bitmap;
using graphics::RectF;

namespace {

constexpr int kRest = 50;

// The shorter side follows the longer one by the ratio of the present Rect, which deliberately
// drifts a little over a long drag.
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
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] {
        BeginUndoStep(editor);
        editor.ScaleStartRect = editor.Document.Selected().Rect;
    });
}

void ChangeScale(Editor& editor, int value) {
    if (!editor.Document.HasSelection())
        return;
    editor.Controls.Scale.Value = std::clamp(value, 0, 100);
    const int step = editor.Controls.Scale.Value - kRest;
    editor.Controls.ScaleValue = std::to_string(step);
    ScaleRect(editor.Document.Selected().Rect, editor.ScaleStartRect, step);
    Compose(editor);
}

void ReleaseScale(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] {
        document::IconLayer& layer = editor.Document.Selected();
        Resample(layer);
        layer.ImageWidth = graphics::RoundToEven(layer.Rect.Width);
        layer.ImageHeight = graphics::RoundToEven(layer.Rect.Height);
        layer.ScaleValue = 0;
        layer.BaseRect = layer.Rect;
        editor.Controls.Scale.Value = kRest;
        editor.Controls.ScaleValue = "0";
        filters::CreateRegion(layer.Image, layer.Region, filters::kVisibleAlpha);
        layer.Region.Translate(layer.Rect.X, layer.Rect.Y);
        Compose(editor);
        editor.Host.LayerPanelChanged();
        editor.Host.ShowTips(tips::Adjusted);
    });
}

}  // namespace orbelle::editing
