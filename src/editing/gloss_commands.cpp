// Crystal, Vista, Fresh, Origami and iOS.
#include "editing/style_commands.h"
#include "editing/style_frames.h"
#include "editing/tips.h"
#include "filters/antialias_edge.h"
#include "filters/color_adjustments.h"
#include "filters/create_region.h"
#include "filters/edge_relief.h"
#include "filters/radial_light.h"

namespace orbelle::editing {
namespace {

constexpr unsigned kFoldAlpha = 15;

void PutGlossOver(const OverlayLayers& layers) {
    PlaceStylePicture(layers.New, filters::CrystalStyle(layers.Source.Image));
    filters::AntialiasEdge(layers.New.Image);
    FinishOverlay(layers);
}

}  // namespace

void Crystal(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    PutGlossOver(OpenOverlay(editor, steps::Crystal));
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Crystal};
}

void Vista(Editor& editor) {
    constexpr int kSaturation = 25;
    if (!editor.Page().HasSelection())
        return;
    const OverlayLayers layers = OpenOverlay(editor, steps::Vista, OverlayUndo::OneStep);
    PutGlossOver(layers);
    filters::ThreeDStyle(layers.Source.Image, filters::kStrongLight);
    filters::SaturationColor(layers.Source.Image, kSaturation);
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Vista};
}

void Fresh(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    const OverlayLayers layers = OpenOverlay(editor, steps::Fresh);
    PlaceStylePicture(layers.New, filters::FreshStyle(layers.Source.Image, editor.Page().Width,
                                                      editor.Page().Height));
    filters::AntialiasEdge(layers.New.Image);
    FinishOverlay(layers);
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Vista};
}

void Origami(Editor& editor, filters::Fold fold) {
    if (!editor.Page().HasSelection())
        return;
    const OverlayLayers layers = OpenOverlay(editor, steps::Origami);
    const graphics::Argb foreground = editor.Tools.Colors[0];
    PlaceStylePicture(layers.New,
                      filters::OrigamiStyle(layers.Source.Image, fold,
                                            graphics::SetAlphaByte(foreground, kFoldAlpha),
                                            graphics::SetAlphaByte(foreground, 0)));
    FinishOverlay(layers);
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Crystal};
}

void Ios(Editor& editor) {
    if (!editor.Page().HasSelection())
        return;
    document::IconLayer& plate = OpenUnderlay(editor, steps::Ios).New;
    const int width = editor.Page().Width;
    const int height = editor.Page().Height;
    plate.Rect = {0, 0, static_cast<float>(width), static_cast<float>(height)};
    plate.ImageWidth = width;
    plate.ImageHeight = height;
    plate.Opacity = 1;
    filters::Plate drawn = filters::IosStyle(editor.Tools.Colors[0], width, height, 0, 0);
    plate.Image = drawn.Image;
    plate.Path = drawn.Path;
    plate.ClipNextLayer = true;
    filters::AntialiasEdge(plate.Image);
    plate.Region = {};
    filters::RebuildRegion(plate.Region, plate.Image, {});
    editor.Selection.Clear();
    ShowStyle(editor);
    editor.Changed.Tip = {tips::Ios};
}

}  // namespace orbelle::editing
