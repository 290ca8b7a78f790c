#include "editing/nudge.h"

#include "editing/tips.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"
#include "filters/half_step.h"
#include "graphics/drawing_context.h"
#include "graphics/errors.h"

namespace orbelle::editing {

using graphics::Bitmap;
using graphics::RectI;

namespace {

// A layer's picture as large as the page shows it.
Bitmap AsShown(const document::IconLayer& layer, const RectI& area) {
    const RectI drawn{0, 0, layer.ImageWidth, layer.ImageHeight};
    if (area.Width == drawn.Width && area.Height == drawn.Height)
        return CopyBitmap(layer.Image, drawn.Width, drawn.Height);
    Bitmap shown(area.Width, area.Height);
    graphics::DrawingContext context(shown);
    context.SetInterpolationMode(graphics::InterpolationMode::NearestNeighbor);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.DrawImageRectRectI(layer.Image, {0, 0, area.Width, area.Height}, drawn);
    return shown;
}

}  // namespace

void NudgeHalf(Editor& editor, Direction direction) {
    if (!editor.Page().HasSelection()) {
        editor.Changed.Tip = {tips::NothingToMove};
        return;
    }
    RectI area = document::DrawnArea(editor.Page().Selected().Rect);
    const bool isAcross = direction == Direction::Left || direction == Direction::Right;
    if (area.Width < 1 || area.Height < 1 || editor.Page().Selected().Image.IsEmpty())
        return;
    if (!graphics::IsBitmapSizeAllowed(area.Width + isAcross, area.Height + !isAcross))
        throw Error("The layer is too large to be moved by half a pixel.");
    BeginUndoStep(editor, steps::MoveLayer);
    document::IconLayer& layer = editor.Page().Selected();
    const Bitmap shown = AsShown(layer, area);
    layer.Image = isAcross ? filters::HalfStepAcross(shown) : filters::HalfStepDown(shown);
    area.X -= direction == Direction::Left;
    area.Y -= direction == Direction::Up;
    area.Width = layer.Image.Width();
    area.Height = layer.Image.Height();
    PlaceAt(layer, area);
    layer.BaseRect = layer.Rect;
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    NoteStack(editor.Changed);
}

}  // namespace orbelle::editing
