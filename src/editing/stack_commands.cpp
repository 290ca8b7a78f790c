#include "editing/stack_commands.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "editing/layer_commands.h"
#include "editing/slider_positions.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"
#include "filters/round_shape.h"
#include "graphics/drawing_context.h"
#include "graphics/errors.h"
#include "graphics/rotate_flip.h"

namespace orbelle::editing {

using document::IconLayer;
using graphics::Bitmap;
using graphics::RectF;

namespace {

void ShowStack(Editor& editor) {
    ShowSelectedLayer(editor);
    NoteStack(editor.Changed);
}

int PlaceAfter(LayerOrder order, int from, int top) {
    switch (order) {
        case LayerOrder::ToFront:
            return top;
        case LayerOrder::ToBack:
            break;
        case LayerOrder::BackOne:
            return std::max(from - 1, 0);
        case LayerOrder::ForwardOne:
            return std::min(from + 1, top);
    }
    return 0;
}

steps::Name StepOf(LayerOrder order) {
    switch (order) {
        case LayerOrder::ToFront:
            return steps::ToFront;
        case LayerOrder::ToBack:
            break;
        case LayerOrder::BackOne:
            return steps::BackOne;
        case LayerOrder::ForwardOne:
            return steps::ForwardOne;
    }
    return steps::ToBack;
}

// The selected one.
void MoveLayer(document::Page& page, int to) {
    const auto first = page.Layers.begin();
    const int from = page.SelectedLayer;
    if (to > from)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
    page.SelectedLayer = to;
}

steps::Name StepOf(FlipRotate mode) {
    switch (mode) {
        case FlipRotate::FlipHorizontal:
            return steps::FlipHorizontal;
        case FlipRotate::FlipVertical:
            return steps::FlipVertical;
        case FlipRotate::Rotate90Cww:
            return steps::Rotate90Cww;
        case FlipRotate::Rotate90Cw:
            break;
    }
    return steps::Rotate90Cw;
}

graphics::RotateFlipType TypeOf(FlipRotate mode) {
    switch (mode) {
        case FlipRotate::FlipHorizontal:
            return graphics::RotateFlipType::RotateNoneFlipX;
        case FlipRotate::FlipVertical:
            return graphics::RotateFlipType::RotateNoneFlipY;
        case FlipRotate::Rotate90Cww:
            return graphics::RotateFlipType::Rotate90FlipX;
        case FlipRotate::Rotate90Cw:
            break;
    }
    return graphics::RotateFlipType::Rotate90FlipNone;
}

bool IsQuarterTurn(FlipRotate mode) {
    return mode == FlipRotate::Rotate90Cww || mode == FlipRotate::Rotate90Cw;
}

bool IsSquare(const IconLayer& layer) {
    return layer.ImageWidth == layer.ImageHeight && layer.Rect.Width == layer.Rect.Height;
}

// What is drawn turns around the middle of its place. Pixels beyond it would turn into sight.
void TurnPlace(IconLayer& layer) {
    const Bitmap drawn = CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight);
    if (!drawn.IsEmpty())
        layer.Image = drawn;
    std::swap(layer.ImageWidth, layer.ImageHeight);
    const auto [x, y, width, height] = layer.Rect;
    const double half = (double{width} - height) / 2;
    layer.Rect = {static_cast<float>(std::floor(x + half)),
                  static_cast<float>(std::floor(y - half)), height, width};
    layer.BaseRect = layer.Rect;
}

void EraseSelected(document::Page& page) {
    page.Layers.erase(page.Layers.begin() + page.SelectedLayer);
    page.SelectedLayer =
        page.Layers.empty() ? document::kNoLayer : std::max(page.SelectedLayer - 1, 0);
}

void DrawLayer(graphics::DrawingContext& context, const IconLayer& layer, const RectF& bounds) {
    const RectF place{layer.Rect.X - bounds.X, layer.Rect.Y - bounds.Y, layer.Rect.Width,
                      layer.Rect.Height};
    context.DrawImageRectRectI(layer.Image, document::DrawnArea(place),
                               {0, 0, layer.ImageWidth, layer.ImageHeight},
                               {graphics::OpacityMatrix(layer.Opacity)});
}

// The plate as the page's composition has it, in the coordinates of `bounds`.
graphics::Path PlateWithin(const RectF& bounds, const IconLayer& plate) {
    return filters::IosPlatePath(graphics::RoundToEven(plate.Rect.Width),
                                 graphics::RoundToEven(plate.Rect.Height), plate.Rect.X - bounds.X,
                                 plate.Rect.Y - bounds.Y);
}

// Both layers as they look on the page, the boxes of both as a whole, also where they leave it.
// Throws Error for boxes too far apart for one picture.
IconLayer Merged(const IconLayer& upper, const IconLayer& lower) {
    graphics::Region boxes = graphics::Region::FromRect(upper.Rect);
    boxes.CombineRect(lower.Rect, graphics::CombineMode::Union);
    const RectF bounds = boxes.Bounds();

    IconLayer merged = lower;
    if (merged.Name.empty())
        merged.Name = upper.Name;
    merged.Rect = bounds;
    merged.BaseRect = bounds;
    merged.ImageWidth = graphics::RoundToEven(bounds.Width);
    merged.ImageHeight = graphics::RoundToEven(bounds.Height);
    merged.Image = Bitmap(merged.ImageWidth, merged.ImageHeight);
    if (merged.Image.IsEmpty() && !boxes.IsEmpty())
        throw Error("The two layers are too far apart to become one picture.");
    graphics::DrawingContext context(merged.Image);
    context.SetInterpolationMode(graphics::InterpolationMode::NearestNeighbor);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    DrawLayer(context, lower, bounds);
    if (lower.ClipNextLayer)
        context.SetClipPath(PlateWithin(bounds, lower), graphics::CombineMode::Intersect);
    DrawLayer(context, upper, bounds);

    merged.Opacity = 1;
    merged.ScaleValue = 0;
    merged.Visible = true;
    merged.Path = {};
    merged.ClipNextLayer = false;
    // A layer that nothing was drawn on yet has no region to unite with.
    if (merged.Region.IsNull())
        merged.Region = upper.Region;
    else
        merged.Region.Combine(upper.Region, graphics::CombineMode::Union);
    ResetLayerAdjust(merged);
    return merged;
}

}  // namespace

void SetLayerOrder(Editor& editor, LayerOrder order) {
    if (!editor.Page().HasSelection() || editor.Page().LayerCount() == 1)
        return;
    BeginUndoStep(editor, StepOf(order));
    document::Page& page = editor.Page();
    MoveLayer(page, PlaceAfter(order, page.SelectedLayer, page.LayerCount() - 1));
    ShowStack(editor);
}

bool CanMoveLayer(const document::Page& page, int layer) {
    if (layer < 0 || layer >= page.LayerCount())
        return false;
    const IconLayer& moved = page.Layers[static_cast<std::size_t>(layer)];
    return moved.Visible && !moved.ClipNextLayer;
}

void MoveLayerTo(Editor& editor, int layer, int to) {
    document::Page& page = editor.Page();
    if (!CanMoveLayer(page, layer) || to < 0 || to >= page.LayerCount())
        return;
    if (to == layer)
        return SelectLayer(editor, layer);
    BeginUndoStep(editor, steps::SetOrder);
    page.SelectedLayer = layer;
    MoveLayer(page, to);
    ShowStack(editor);
}

std::string NameOfLayer(const document::Page& page, int layer) {
    const std::string& name = page.Layers[static_cast<std::size_t>(layer)].Name;
    return name.empty() ? "Icon " + std::to_string(layer + 1) : name;
}

void RenameLayer(Editor& editor, int layer, const std::string& name) {
    document::Page& page = editor.Page();
    if (layer < 0 || layer >= page.LayerCount())
        return;
    const std::string clean = document::CleanLayerName(name);
    IconLayer& renamed = page.Layers[static_cast<std::size_t>(layer)];
    if (clean == renamed.Name || clean == NameOfLayer(page, layer))
        return;
    BeginUndoStep(editor, steps::RenameLayer);
    renamed.Name = clean;
    editor.Changed.Stack = true;
}

void FlipRotateLayer(Editor& editor, FlipRotate mode) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, StepOf(mode));
    IconLayer& layer = editor.Page().Selected();
    if (IsQuarterTurn(mode) && !IsSquare(layer))
        TurnPlace(layer);
    ImageRotateFlip(layer.Image, TypeOf(mode));
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    NoteStack(editor.Changed);
}

void DeleteLayer(Editor& editor) {
    RemoveLayer(editor, steps::DeleteLayer);
}

void RemoveLayer(Editor& editor, steps::Name step) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, step);
    EraseSelected(editor.Page());
    ShowStack(editor);
}

void MergeDown(Editor& editor) {
    document::Page& page = editor.Page();
    if (page.SelectedLayer < 1)
        return;
    const IconLayer merged =
        Merged(page.Selected(), page.Layers[static_cast<std::size_t>(page.SelectedLayer) - 1]);
    BeginUndoStep(editor, steps::MergeDown, 2);
    EraseSelected(page);
    page.Selected() = merged;
    ShowStack(editor);
}

}  // namespace orbelle::editing
