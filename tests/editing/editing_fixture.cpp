#include "editing_fixture.h"

#include <sstream>
#include <string_view>

#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"

namespace orbelle::editing {
namespace {

std::ostream& operator<<(std::ostream& text, const graphics::RectF& rect) {
    return text << rect.X << ' ' << rect.Y << ' ' << rect.Width << ' ' << rect.Height << "; ";
}

std::size_t HashOf(const graphics::Bitmap& picture) {
    const auto pixels = static_cast<std::size_t>(picture.Width() * picture.Height());
    return std::hash<std::string_view>()(
        {reinterpret_cast<const char*>(picture.Pixels()), pixels * sizeof(graphics::Argb)});
}

void AddText(std::ostream& text, const document::IconLayer& layer) {
    text << layer.Rect << layer.BaseRect << layer.ImageWidth << 'x' << layer.ImageHeight << " op "
         << layer.Opacity << " scale " << layer.ScaleValue << " visible " << layer.Visible
         << " clip " << layer.ClipNextLayer << " sliders " << layer.Hue << ' ' << layer.Saturation
         << ' ' << layer.Brightness << ' ' << layer.Contrast << " region " << layer.Region.IsNull()
         << ' ' << layer.Region.Bounds() << "pixels " << layer.Image.Width() << 'x'
         << layer.Image.Height() << ' ' << HashOf(layer.Image) << '\n';
}

}  // namespace

std::vector<NamedCommand> LayerCommands() {
    const auto drag = [](auto press, auto change, auto release) {
        return [=](Editor& editor) {
            press(editor);
            change(editor);
            release(editor);
        };
    };
    const auto order = [](LayerOrder to) { return [=](Editor& e) { SetLayerOrder(e, to); }; };
    const auto turn = [](FlipRotate mode) { return [=](Editor& e) { FlipRotateLayer(e, mode); }; };
    const auto adjustment = [&](Adjustment kind) {
        return drag(
            PressAdjustment, [=](Editor& e) { ChangeAdjustment(e, kind, 80); },
            [=](Editor& e) { ReleaseAdjustment(e, kind); });
    };
    const auto fold = [](filters::Fold how) { return [=](Editor& e) { Origami(e, how); }; };
    const auto key = [](SceneKey which) { return [=](Editor& e) { KeyDownScene(e, which); }; };
    return {
        {"to front", order(LayerOrder::ToFront)},
        {"to back", order(LayerOrder::ToBack)},
        {"back one", order(LayerOrder::BackOne)},
        {"forward one", order(LayerOrder::ForwardOne)},
        {"flip", turn(FlipRotate::FlipHorizontal)},
        {"turn", turn(FlipRotate::Rotate90Cw)},
        {"delete layer", DeleteLayer},
        {"merge", MergeDown},
        {"the bar's remove", PressRemoveLayer},
        {"the bar's hide", PressHideLayer},
        {"the bar's merge", PressMergeDown},
        {"copy", CopyToClipboard},
        {"cut", CutToClipboard},
        {"delete", DeleteSelected},
        {"delete selection", DeleteSelection},
        {"opacity",
         drag(
             PressOpacity, [](Editor& e) { ChangeOpacity(e, 30); }, ReleaseOpacity),
         tips::Adjusted},
        {"hue", adjustment(Adjustment::Hue), tips::Adjusted},
        {"contrast", adjustment(Adjustment::Contrast), tips::Adjusted},
        {"scale",
         drag(
             PressScale, [](Editor& e) { ChangeScale(e, 60); }, ReleaseScale),
         tips::Adjusted},
        {"crystal", Crystal, tips::Crystal},
        {"vista", Vista, tips::Vista},
        {"fresh", Fresh, tips::Vista},
        {"fold", fold(filters::Fold::Vertical), tips::Crystal},
        {"fold across", fold(filters::Fold::Horizontal), tips::Crystal},
        {"reflection", Reflection, tips::Reflection},
        {"shade", Shade, tips::Shade},
        {"ios", Ios, tips::Ios},
        {"shadow", DropShadow},
        {"mac", Mac, tips::Adjusted},
        {"irradiation", Irradiation, tips::Adjusted},
        {"blur", Blur},
        {"sharpen", Sharpen},
        {"left key", key(SceneKey::Left)},
        {"delete key", key(SceneKey::Delete)},
    };
}

std::string StackText(const document::Page& page) {
    std::ostringstream text;
    text << "selected " << page.SelectedLayer << '\n';
    for (const document::IconLayer& layer : page.Layers)
        AddText(text, layer);
    return text.str();
}

std::string StateText(const Editor& editor) {
    std::ostringstream text;
    const auto bar = [&](const document::ScrollBar& shown) {
        text << shown.Value << '/' << shown.Max << ' ' << shown.Visible << ' ';
    };
    text << StackText(editor.Page()) << "page " << editor.Page().Width << 'x'
         << editor.Page().Height << " canvas " << HashOf(editor.Canvas) << " background "
         << editor.Document.Background << " path " << editor.Document.Path << " modified "
         << editor.Document.Modified << " exists " << editor.DocumentExists << " title "
         << editor.Title << "\nundo " << editor.History.UndoIndex() << " redo "
         << editor.History.RedoCount() << " of " << editor.History.UndoCount() << "\nselection "
         << editor.Selection.Exists() << ' '
         << (editor.Selection.Exists() ? editor.Selection.Region().Bounds() : graphics::RectF())
         << "polygon " << editor.PolygonPoints.size() << "\nzoom " << editor.View.Zoom << ' ';
    bar(editor.View.HorizontalScroll);
    bar(editor.View.VerticalScroll);
    text << "\ntool " << static_cast<int>(editor.Tools.InUse) << " popup "
         << static_cast<int>(editor.Tools.OpenPopup) << " colours " << editor.Tools.Colors[0] << ' '
         << editor.Tools.Colors[1] << "\nsliders";
    const Sliders& sliders = editor.Sliders;
    for (const Slider* slider :
         {&sliders.Opacity, &sliders.Hue, &sliders.Saturation, &sliders.Brightness,
          &sliders.Contrast, &sliders.Scale, &sliders.PageWidth, &sliders.PageHeight,
          &sliders.ColorOpacity, &sliders.LineWidth, &sliders.BrushOpacity, &sliders.BrushSize})
        text << ' ' << slider->Value << ' ' << slider->Label << ' ' << slider->Enabled;
    text << "\nmark " << editor.Overlays.PointerMark.Visible << " band "
         << editor.Overlays.RubberBand.Visible << " frame "
         << editor.Overlays.SelectionFrame.Visible << '\n';
    return text.str();
}

}  // namespace orbelle::editing
