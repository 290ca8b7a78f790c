#include "editing/clipboard_commands.h"

#include <optional>

#include "document/layer_slots.h"
#include "editing/command_frame.h"
#include "editing/layer_commands.h"
#include "editing/stack_commands.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "filters/create_region.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using document::IconLayer;
using graphics::Bitmap;
using graphics::RectF;
using graphics::RectI;

namespace {

enum class Crop { Copy, Cut, CopyAndCut };

// `image` is the layer's own, or a copy that is to be cut.
document::TakenOut CropLayer(const Editor& editor, const IconLayer& layer, Bitmap& image,
                             Crop crop) {
    return editor.Selection.TakeOut(image, layer.ImageWidth, layer.ImageHeight,
                                    editor.Document.PageWidth, editor.Document.PageHeight,
                                    {layer.Rect.X, layer.Rect.Y}, crop != Crop::Copy,
                                    crop != Crop::Cut);
}

void PlaceAt(IconLayer& layer, const RectI& area) {
    layer.Rect = {static_cast<float>(area.X), static_cast<float>(area.Y),
                  static_cast<float>(area.Width), static_cast<float>(area.Height)};
    layer.ImageWidth = area.Width;
    layer.ImageHeight = area.Height;
}

IconLayer CopyOfSelectedPixels(const Editor& editor) {
    const IconLayer& source = editor.Document.Selected();
    Bitmap image = source.Image;
    const document::TakenOut cropped = CropLayer(editor, source, image, Crop::Copy);
    IconLayer copy;
    copy.Image = cropped.Image;
    PlaceAt(copy, cropped.Area);
    copy.BaseRect = copy.Rect;
    copy.Opacity = source.Opacity;
    filters::CreateRegion(copy.Image, copy.Region, filters::kVisibleAlpha);
    copy.Region.Translate(copy.Rect.X, copy.Rect.Y);
    return copy;
}

// The layer as large as it is on the page; a page's size of it is shown to other programs.
Bitmap PictureOf(const document::Document& document, const IconLayer& layer) {
    Bitmap picture(document.PageWidth, document.PageHeight);
    graphics::DrawingContext context(picture);
    context.SetInterpolationMode(graphics::InterpolationMode::HighQuality);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.DrawImageRect(CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight),
                          {0, 0, layer.Rect.Width, layer.Rect.Height});
    return picture;
}

void Copy(Editor& editor) {
    const bool isSelection = editor.Selection.Exists();
    IconLayer copy = isSelection ? CopyOfSelectedPixels(editor) : editor.Document.Selected();
    const Bitmap picture = isSelection ? copy.Image : PictureOf(editor.Document, copy);
    editor.Host.SetClipboard(CopyBitmap(picture, graphics::RoundToEven(copy.Rect.Width),
                                        graphics::RoundToEven(copy.Rect.Height)),
                             kClipboardMark);
    editor.ClipboardLayer = std::move(copy);
}

// What was copied, with a picture of the size that it has on the page.
IconLayer OwnLayer(const IconLayer& copied) {
    IconLayer layer = copied;
    const RectI drawn = document::DrawnArea(layer.Rect);
    if (layer.Image.IsEmpty() || !graphics::IsBitmapSizeAllowed(drawn.Width, drawn.Height))
        return layer;
    if (layer.ImageWidth != drawn.Width || layer.ImageHeight != drawn.Height) {
        Bitmap resized(drawn.Width, drawn.Height);
        graphics::DrawingContext context(resized);
        context.SetInterpolationMode(graphics::InterpolationMode::NearestNeighbor);
        context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
        context.DrawImageRectRectI(layer.Image, {0, 0, drawn.Width, drawn.Height},
                                   {0, 0, layer.ImageWidth, layer.ImageHeight});
        layer.Image = resized;
    }
    layer.ImageWidth = drawn.Width;
    layer.ImageHeight = drawn.Height;
    return layer;
}

// Another program's picture at the page's corner, opaque: over white.
IconLayer ForeignLayer(const Bitmap& picture) {
    IconLayer layer;
    layer.Image = Bitmap(picture.Width(), picture.Height());
    graphics::DrawingContext context(layer.Image);
    context.Clear(graphics::MakeARGB(255, 255, 255, 255));
    context.DrawImage(picture, 0, 0);
    PlaceAt(layer, {0, 0, picture.Width(), picture.Height()});
    layer.BaseRect = layer.Rect;
    layer.Region = graphics::Region::FromRect(layer.Rect);
    return layer;
}

std::optional<IconLayer> ClipboardContent(Editor& editor) {
    if (!editor.Host.ClipboardHasPicture())
        return std::nullopt;
    if (editor.ClipboardLayer && editor.Host.ClipboardText() == kClipboardMark)
        return OwnLayer(*editor.ClipboardLayer);
    const Bitmap picture = editor.Host.ClipboardPicture();
    if (picture.IsEmpty())
        return std::nullopt;
    return ForeignLayer(picture);
}

}  // namespace

void CopyToClipboard(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] { Copy(editor); });
}

void CutToClipboard(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    RunCommand(editor, [&] {
        editor.History.CheckRoom(editor.Document);
        Copy(editor);
        if (editor.Selection.Exists())
            DeleteSelection(editor);
        else
            DeleteIcon(editor, true);
    });
}

void PasteFromClipboard(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    RunCommand(editor, [&] {
        std::optional<IconLayer> content = ClipboardContent(editor);
        if (!content)
            return;
        BeginUndoStep(editor);
        OpenLayerSlot(editor.Document, document::SlotCopySize::Image) = std::move(*content);
        editor.Selection.Clear();
        ShowSelectedLayer(editor);
        Compose(editor);
        editor.Host.LayerPanelChanged();
    });
}

void EndSelection(Editor& editor) {
    if (!editor.Selection.Exists())
        return;
    editor.Selection.Clear();
    DrawScene(editor);
}

void DeleteSelection(Editor& editor) {
    if (!editor.Document.HasSelection())
        return;
    IconLayer& layer = editor.Document.Selected();
    Bitmap rest = layer.Image;
    CropLayer(editor, layer, rest, Crop::Cut);
    BeginUndoStep(editor);
    layer.Image = rest;
    layer.Rect.Width = static_cast<float>(layer.ImageWidth);
    layer.Rect.Height = static_cast<float>(layer.ImageHeight);
    editor.Selection.Clear();
    Compose(editor);
    editor.Host.LayerPanelChanged();
}

void FloatSelection(Editor& editor) {
    constexpr int kUndoSteps = 2;
    document::Document& document = editor.Document;
    editor.History.CheckRoom(document, kUndoSteps);
    const IconLayer& source =
        document.HasSelection() ? document.Selected() : document.Layers.back();
    Bitmap rest = source.Image;
    const document::TakenOut floated = CropLayer(editor, source, rest, Crop::CopyAndCut);

    BeginUndoStep(editor);
    AddEmptyLayer(editor, 0, 0);
    IconLayer& layer = document.Selected();
    IconLayer& below = document.Layers[static_cast<std::size_t>(document.SelectedLayer) - 1];
    below.Image = rest;
    // What lies partly off the page is deliberately lost: the layer stays blank.
    if (!floated.Image.IsEmpty())
        layer.Image = floated.Image;
    PlaceAt(layer, floated.Area);
    layer.Opacity = below.Opacity;
    editor.Selection.Clear();
    ShowSelectedLayer(editor);
    Compose(editor);
    editor.Host.LayerPanelChanged();
}

}  // namespace orbelle::editing
