#include "editing/style_commands.h"

#include "editing/command_frame.h"
#include "editing/layer_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "filters/antialias_edge.h"
#include "filters/create_region.h"
#include "filters/gloss_styles.h"

namespace orbelle::editing {

using document::IconLayer;

namespace {

struct OverlayLayers {
    IconLayer& New;
    const IconLayer& Source;  // the one below it
};

// Two undo steps, one here and one in AddEmptyLayer: deliberately so.
OverlayLayers OpenOverlay(Editor& editor) {
    BeginUndoStep(editor);
    const IconLayer& selected = editor.Document.Selected();
    AddEmptyLayer(editor, static_cast<float>(selected.ImageWidth),
                  static_cast<float>(selected.ImageHeight));
    const auto above = static_cast<std::size_t>(editor.Document.SelectedLayer);
    return {editor.Document.Layers[above], editor.Document.Layers[above - 1]};
}

// The style's picture, at its place on the source picture, becomes the new layer. Without one the
// layer stays the blank page that AddEmptyLayer made.
void PlaceStylePicture(IconLayer& layer, const std::optional<filters::StylePicture>& style) {
    if (style && !style->Image.IsEmpty())
        layer.Image = style->Image;
    layer.Rect.X = style ? style->X : 0;
    layer.Rect.Y = style ? style->Y : 0;
    layer.ImageWidth = layer.Image.Width();
    layer.ImageHeight = layer.Image.Height();
}

// From source coordinates to the page.
void FinishOverlay(const OverlayLayers& layers, float opacity) {
    IconLayer& layer = layers.New;
    layer.Rect.X += layers.Source.Rect.X;
    layer.Rect.Y += layers.Source.Rect.Y;
    filters::CreateRegion(layer.Image, layer.Region, filters::kVisibleAlpha);
    layer.Region.Translate(layer.Rect.X, layer.Rect.Y);
    layer.Opacity = opacity;
    layer.Rect.Width = static_cast<float>(layer.ImageWidth);
    layer.Rect.Height = static_cast<float>(layer.ImageHeight);
    layer.BaseRect = layer.Rect;
    layer.Visible = true;
}

void ShowStyle(Editor& editor, int tip) {
    Compose(editor);
    editor.Host.LayerPanelChanged();
    editor.Host.ShowTips(tip);
}

}  // namespace

void Crystal(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] {
        const OverlayLayers layers = OpenOverlay(editor);
        PlaceStylePicture(layers.New, filters::CrystalStyle(layers.Source.Image));
        filters::AntialiasEdge(layers.New.Image);
        FinishOverlay(layers, 1);
        ShowStyle(editor, tips::Crystal);
    });
}

}  // namespace orbelle::editing
