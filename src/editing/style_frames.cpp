#include "editing/style_frames.h"

#include "editing/layer_commands.h"
#include "editing/slider_positions.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"

namespace orbelle::editing {

using document::IconLayer;

OverlayLayers OpenOverlay(Editor& editor, steps::Name step, OverlayUndo undo) {
    BeginUndoStep(editor, step, undo == OverlayUndo::TwoSteps ? 2 : 1);
    const IconLayer& selected = editor.Page().Selected();
    InsertEmptyLayer(editor, static_cast<float>(selected.ImageWidth),
                     static_cast<float>(selected.ImageHeight));
    const auto above = static_cast<std::size_t>(editor.Page().SelectedLayer);
    return {editor.Page().Layers[above], editor.Page().Layers[above - 1]};
}

void PlaceStylePicture(IconLayer& layer, const std::optional<filters::StylePicture>& style) {
    const bool drawn = style && !style->Image.IsEmpty();
    if (drawn)
        layer.Image = style->Image;
    layer.Rect.X = style ? style->X : 0;
    layer.Rect.Y = style ? style->Y : 0;
    layer.ImageWidth = drawn ? style->Width : layer.Image.Width();
    layer.ImageHeight = drawn ? style->Height : layer.Image.Height();
}

void FinishOverlay(const OverlayLayers& layers) {
    IconLayer& layer = layers.New;
    layer.Rect.X += layers.Source.Rect.X;
    layer.Rect.Y += layers.Source.Rect.Y;
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    layer.Opacity = 1;
    layer.Rect.Width = static_cast<float>(layer.ImageWidth);
    layer.Rect.Height = static_cast<float>(layer.ImageHeight);
    layer.BaseRect = layer.Rect;
    layer.Visible = true;
}

UnderlayLayers OpenUnderlay(Editor& editor, steps::Name step) {
    const OverlayLayers room = OpenOverlay(editor, step, OverlayUndo::OneStep);
    room.New = room.Source;
    room.Source.Name.clear();
    --editor.Page().SelectedLayer;
    return {room.Source, room.New};
}

void ShowStyle(Editor& editor) {
    ShowSelectedLayer(editor);
    NoteStack(editor.Changed);
}

}  // namespace orbelle::editing
