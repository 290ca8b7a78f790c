#include "editing/selection_commands.h"

#include "editing/layer_commands.h"
#include "editing/slider_positions.h"
#include "editing/tools/polygon.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"

namespace orbelle::editing {

using document::IconLayer;
using graphics::Bitmap;

namespace {

enum class Crop { Copy, Cut, CopyAndCut };

// `image` is the layer's own, or a copy that is to be cut.
document::TakenOut TakeOutOf(const Editor& editor, const IconLayer& layer, Bitmap& image,
                             Crop crop) {
    return editor.Selection.TakeOut(image, layer.ImageWidth, layer.ImageHeight, editor.Page().Width,
                                    editor.Page().Height, {layer.Rect.X, layer.Rect.Y},
                                    crop != Crop::Copy, crop != Crop::Cut);
}

}  // namespace

void SelectAll(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    DropPolygon(editor);
    editor.Selection.SelectAll(editor.Page().Width, editor.Page().Height);
    editor.Changed.Scene = true;
}

void InvertSelection(Editor& editor) {
    DropPolygon(editor);
    editor.Selection.Invert(editor.Page().Width, editor.Page().Height);
    editor.Changed.Scene = true;
}

void EndSelection(Editor& editor) {
    editor.Selection.Clear();
    editor.Changed.Scene = true;
}

bool EndSelectionOffPage(Editor& editor) {
    const document::Page& page = editor.Page();
    if (!editor.Selection.Exists() || editor.Selection.IsOnPage(page.Width, page.Height))
        return false;
    EndSelection(editor);
    return true;
}

IconLayer CopyOfSelectedPixels(const Editor& editor) {
    const IconLayer& source = editor.Page().Selected();
    Bitmap image = source.Image;
    const document::TakenOut taken = TakeOutOf(editor, source, image, Crop::Copy);
    IconLayer copy;
    copy.Image = taken.Image;
    document::PlaceAt(copy, taken.Area);
    copy.BaseRect = copy.Rect;
    copy.Opacity = source.Opacity;
    filters::RebuildRegion(copy.Region, copy.Image, {copy.Rect.X, copy.Rect.Y});
    return copy;
}

void DeleteSelection(Editor& editor) {
    RemoveSelection(editor, steps::DeleteSelection);
}

void RemoveSelection(Editor& editor, steps::Name step) {
    if (!editor.Page().HasSelection() || EndSelectionOffPage(editor))
        return;
    IconLayer& layer = editor.Page().Selected();
    Bitmap rest = layer.Image;
    TakeOutOf(editor, layer, rest, Crop::Cut);
    BeginUndoStep(editor, step);
    layer.Image = rest;
    layer.Rect.Width = static_cast<float>(layer.ImageWidth);
    layer.Rect.Height = static_cast<float>(layer.ImageHeight);
    editor.Selection.Clear();
    NoteStack(editor.Changed);
}

void FloatSelection(Editor& editor) {
    document::Page& page = editor.Page();
    const IconLayer& source = page.HasSelection() ? page.Selected() : page.Layers.back();
    Bitmap rest = source.Image;
    const document::TakenOut floated = TakeOutOf(editor, source, rest, Crop::CopyAndCut);

    BeginUndoStep(editor, steps::MoveSelection, 2);
    InsertEmptyLayer(editor, 0, 0);
    IconLayer& layer = page.Selected();
    IconLayer& below = page.Layers[static_cast<std::size_t>(page.SelectedLayer) - 1];
    below.Image = rest;
    layer.Image = floated.Image;
    document::PlaceAt(layer, floated.Area);
    layer.BaseRect = layer.Rect;
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    layer.Opacity = below.Opacity;
    editor.Selection.Clear();
    ShowSelectedLayer(editor);
    NoteStack(editor.Changed);
}

}  // namespace orbelle::editing
