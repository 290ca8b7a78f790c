#include "support/editor_account.h"

#include <cstdint>
#include <sstream>

#include "support/pictures.h"

namespace orbelle::testing {
namespace {

using graphics::RectF;

struct Sum {
    void Add(std::uint64_t number) { Value = (Value ^ number) * 0x100000001B3U; }

    std::uint64_t Value = 0xCBF29CE484222325U;
};

std::ostream& operator<<(std::ostream& out, const graphics::Bitmap& picture) {
    Sum sum;
    for (const graphics::Argb pixel : PixelsOf(picture))
        sum.Add(pixel);
    return out << picture.Width() << 'x' << picture.Height() << ':' << sum.Value;
}

std::ostream& operator<<(std::ostream& out, const graphics::Region& region) {
    if (region.IsNull())
        return out << "none";
    Sum sum;
    for (const graphics::RectI& rect : region.Rects({-100, -100, 1000, 1000}))
        for (const int number : {rect.X, rect.Y, rect.Width, rect.Height})
            sum.Add(static_cast<std::uint64_t>(number));
    return out << sum.Value;
}

std::ostream& operator<<(std::ostream& out, const RectF& rect) {
    return out << rect.X << ',' << rect.Y << ',' << rect.Width << ',' << rect.Height;
}

std::ostream& operator<<(std::ostream& out, const document::IconLayer& layer) {
    return out << layer.Image << " region " << layer.Region << " at " << layer.Rect << " base "
               << layer.BaseRect << " drawn " << layer.ImageWidth << 'x' << layer.ImageHeight
               << " opacity " << layer.Opacity << " scale " << layer.ScaleValue << " adjusted "
               << layer.Hue << ',' << layer.Saturation << ',' << layer.Brightness << ','
               << layer.Contrast << (layer.Visible ? " visible" : " hidden")
               << (layer.Path.IsNull() ? "" : " plate") << (layer.ClipNextLayer ? " clips" : "");
}

std::ostream& operator<<(std::ostream& out, const document::Page& page) {
    out << page.Width << 'x' << page.Height << " selected " << page.SelectedLayer << '\n';
    for (const document::IconLayer& layer : page.Layers)
        out << "  layer " << layer << '\n';
    return out;
}

std::ostream& operator<<(std::ostream& out, const document::Family& family) {
    out << family.Master;
    for (const document::SizePage& page : family.Sizes)
        out << "size " << page.Size << ' ' << page.Artwork;
    return out;
}

std::ostream& operator<<(std::ostream& out, const editing::Slider& slider) {
    return out << ' ' << slider.Value << '/' << slider.Label << (slider.Enabled ? "" : "-");
}

std::ostream& operator<<(std::ostream& out, const document::ScrollBar& bar) {
    return out << ' ' << bar.Value << '/' << bar.Max << (bar.Visible ? "" : "-");
}

// On copies, which share what the editor's own history holds.
void TellHistory(std::ostream& out, document::UndoHistory history, document::Document document) {
    out << "history " << history.UndoIndex() << " and " << history.RedoCount() << " of "
        << history.UndoCount() << '\n';
    const auto tell = [&](const char* what, std::string_view name) {
        out << what << name << " background " << document.Background << " size "
            << document.EditedSize << ' ' << static_cast<const document::Family&>(document);
    };
    while (history.Undo(document))
        tell(" undo ", history.RedoName());
    while (history.Redo(document))
        tell(" redo ", history.UndoName());
}

}  // namespace

std::string AccountOf(const graphics::Bitmap& picture) {
    std::ostringstream out;
    out << picture;
    return out.str();
}

std::string AccountOf(const document::Page& page) {
    std::ostringstream out;
    out << page;
    return out.str();
}

std::string AccountOf(const document::Family& family) {
    std::ostringstream out;
    out << family;
    return out.str();
}

std::string AccountOf(const editing::Editor& editor) {
    std::ostringstream out;
    out << std::boolalpha << "document " << editor.DocumentExists << ' ' << editor.Document.Path
        << " modified " << editor.Document.Modified << " background " << editor.Document.Background
        << " title " << editor.Title << "\nsize " << editor.Document.EditedSize << " pages "
        << static_cast<const document::Family&>(editor.Document);
    TellHistory(out, editor.History, editor.Document);

    out << "selection " << editor.Selection.Exists() << ' ' << editor.Selection.Region();
    for (const graphics::PointF& point : editor.PolygonPoints)
        out << " point " << point.X << ',' << point.Y;
    const editing::Overlays& overlays = editor.Overlays;
    out << "\noverlays " << overlays.PointerMark.Visible << ' ' << overlays.PointerMark.Rect << ' '
        << overlays.SelectionFrame.Visible << ' ' << overlays.SelectionFrame.Rect << ' '
        << overlays.RubberBand.Visible << "\ndrag " << editor.Drag.index();

    const editing::Sliders& sliders = editor.Sliders;
    out << "\nsliders" << sliders.Opacity << sliders.Hue << sliders.Saturation << sliders.Brightness
        << sliders.Contrast << sliders.Scale << sliders.PageWidth << sliders.PageHeight
        << sliders.ColorOpacity << sliders.LineWidth << sliders.BrushOpacity << sliders.BrushSize;
    out << "\ntools " << static_cast<int>(editor.Tools.InUse) << ' ' << editor.Tools.Colors[0]
        << ' ' << editor.Tools.Colors[1] << ' ' << static_cast<int>(editor.Tools.OpenPopup);
    out << "\nview " << editor.View.Zoom << editor.View.HorizontalScroll
        << editor.View.VerticalScroll << ' ' << editor.Zoom.IsAnimated << ' '
        << editor.Zoom.SavedZoom << "\ncommands ";
    // Paste is about the clipboard, which nobody takes back.
    for (std::size_t i = 0; i < editor.States.Commands.size(); ++i)
        if (i != static_cast<std::size_t>(editing::CommandId::Paste))
            out << (editor.States.Commands[i] ? '+' : '-');
    out << '\n';
    return out.str();
}

std::string AccountOfPictures(const editing::Editor& editor) {
    std::ostringstream out;
    out << "canvas " << editor.Canvas << "\nscene " << editor.Scene << '\n';
    for (const document::IconLayer& layer : editor.Page().Layers)
        out << "plate " << layer.Path.WorldBounds() << '\n';
    return out.str();
}

}  // namespace orbelle::testing
