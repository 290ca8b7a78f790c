#include "editing/stack_commands.h"

#include <algorithm>
#include <stdexcept>

#include "editing/clipboard_commands.h"
#include "editing/command_frame.h"
#include "editing/layer_commands.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "filters/create_region.h"
#include "graphics/drawing_context.h"
#include "graphics/rotate_flip.h"

namespace orbelle::editing {

using document::IconLayer;
using graphics::Bitmap;
using graphics::RectF;

namespace {

void ShowStack(Editor& editor) {
    ShowSelectedLayer(editor);
    Compose(editor);
    editor.Host.LayerPanelChanged();
}

void MoveLayer(document::Document& document, LayerOrder order) {
    const auto first = document.Layers.begin();
    const int from = document.SelectedLayer;
    const int top = document.LayerCount() - 1;
    int to = from;
    switch (order) {
        case LayerOrder::ToFront:
            to = top;
            break;
        case LayerOrder::ToBack:
            to = 0;
            break;
        case LayerOrder::BackOne:
            to = std::max(from - 1, 0);
            break;
        case LayerOrder::FowardOne:
            to = std::min(from + 1, top);
            break;
    }
    if (to > from)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
    document.SelectedLayer = to;
}

graphics::RotateFlipType TypeOf(FlipRotate mode) {
    switch (mode) {
        case FlipRotate::FlipH:
            return graphics::RotateFlipType::RotateNoneFlipX;
        case FlipRotate::FlipV:
            return graphics::RotateFlipType::RotateNoneFlipY;
        case FlipRotate::Rotate90CWW:
            return graphics::RotateFlipType::Rotate90FlipX;
        case FlipRotate::Rotate90CW:
            break;
    }
    return graphics::RotateFlipType::Rotate90FlipNone;
}

void DrawLayer(graphics::DrawingContext& context, const IconLayer& layer, const RectF& bounds) {
    const RectF place{layer.Rect.X - bounds.X, layer.Rect.Y - bounds.Y, layer.Rect.Width,
                      layer.Rect.Height};
    context.DrawImageRectRectI(layer.Image, document::DrawnArea(place),
                               {0, 0, layer.ImageWidth, layer.ImageHeight},
                               {graphics::OpacityMatrix(layer.Opacity)});
}

// Both layers as they look on the page, the boxes of both as a whole, also where they leave it.
// Throws std::length_error for boxes too far apart for one picture.
IconLayer Merged(const IconLayer& upper, const IconLayer& lower) {
    graphics::Region boxes = graphics::Region::FromRect(upper.Rect);
    boxes.CombineRect(lower.Rect, graphics::CombineMode::Union);
    const RectF bounds = boxes.Bounds();

    IconLayer merged = lower;
    merged.Rect = bounds;
    merged.BaseRect = bounds;
    merged.ImageWidth = graphics::RoundToEven(bounds.Width);
    merged.ImageHeight = graphics::RoundToEven(bounds.Height);
    merged.Image = Bitmap(merged.ImageWidth, merged.ImageHeight);
    if (merged.Image.IsEmpty() && !boxes.IsEmpty())
        throw std::length_error("The two layers are too far apart to become one picture.");
    graphics::DrawingContext context(merged.Image);
    context.SetInterpolationMode(graphics::InterpolationMode::NearestNeighbor);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    DrawLayer(context, lower, bounds);
    DrawLayer(context, upper, bounds);

    merged.Opacity = 1;
    merged.ScaleValue = 0;
    merged.Visible = true;
    // A layer that nothing was drawn on yet has no region to unite with.
    if (merged.Region.IsNull())
        merged.Region = upper.Region;
    else
        merged.Region.Combine(upper.Region, graphics::CombineMode::Union);
    ResetLayerAdjust(merged);
    return merged;
}

void MergeDown(Editor& editor) {
    constexpr int kUndoSteps = 2;
    const document::Document& document = editor.Document;
    if (document.SelectedLayer < 1)
        return;
    editor.History.CheckRoom(document, kUndoSteps);
    const IconLayer merged = Merged(
        document.Selected(), document.Layers[static_cast<std::size_t>(document.SelectedLayer) - 1]);
    BeginUndoStep(editor);
    DeleteIcon(editor, false);
    editor.Document.Selected() = merged;
    ShowStack(editor);
}

}  // namespace

void SetLayerOrder(Editor& editor, LayerOrder order) {
    if (!editor.Document.HasSelection() || editor.Document.LayerCount() == 1)
        return;
    RunCommand(editor, [&] {
        BeginUndoStep(editor);
        MoveLayer(editor.Document, order);
        ShowStack(editor);
    });
}

void FlipRotateLayer(Editor& editor, FlipRotate mode) {
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] {
        IconLayer& layer = editor.Document.Selected();
        Bitmap image = layer.Image;
        ImageRotateFlip(image, TypeOf(mode));
        graphics::Region region = layer.Region;
        filters::CreateRegion(image, region, filters::kVisibleAlpha);
        region.Translate(layer.Rect.X, layer.Rect.Y);
        BeginUndoStep(editor);
        layer.Image = image;
        layer.Region = region;
        Compose(editor);
        editor.Host.LayerPanelChanged();
    });
}

void DeleteIcon(Editor& editor, bool redraw) {
    document::Document& document = editor.Document;
    if (!document.HasSelection())
        return;
    BeginUndoStep(editor);
    document.Layers.erase(document.Layers.begin() + document.SelectedLayer);
    document.SelectedLayer =
        document.Layers.empty() ? document::kNoLayer : std::max(document.SelectedLayer - 1, 0);
    ShowSelectedLayer(editor);
    // The button deliberately keeps the last layer; the menu removes it.
    if (document.LayerCount() == 1)
        editor.Controls.LayerBar[layer_buttons::Remove].Enabled = false;
    if (redraw) {
        Compose(editor);
        editor.Host.LayerPanelChanged();
    }
}

void CombineIcon(Editor& editor) {
    RunCommand(editor, [&] { MergeDown(editor); });
}

void DeleteCommand(Editor& editor) {
    RunCommand(editor, [&] {
        if (editor.Selection.Exists())
            DeleteSelection(editor);
        else
            DeleteIcon(editor, true);
    });
}

void RemoveLayerCommand(Editor& editor) {
    RunCommand(editor, [&] {
        EndSelection(editor);
        DeleteIcon(editor, true);
    });
}

void HideLayerCommand(Editor& editor) {
    RunCommand(editor, [&] {
        EndSelection(editor);
        if (!editor.Document.HasSelection())
            return;
        IconLayer& layer = editor.Document.Selected();
        layer.Visible = !layer.Visible;
        UpdateLayerButtons(editor);
        Compose(editor);
        editor.Host.LayerPanelChanged();
    });
}

void MergeDownCommand(Editor& editor) {
    RunCommand(editor, [&] {
        EndSelection(editor);
        MergeDown(editor);
    });
}

}  // namespace orbelle::editing
