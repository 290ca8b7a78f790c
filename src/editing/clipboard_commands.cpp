#include "editing/clipboard_commands.h"

#include <utility>

#include "document/layer_slots.h"
#include "editing/selection_commands.h"
#include "editing/slider_positions.h"
#include "editing/stack_commands.h"
#include "editing/undo_step.h"
#include "filters/shrink_to_size.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using document::IconLayer;
using graphics::Bitmap;
using graphics::RectI;

namespace {

// The layer as large as it is on the page; a page's size of it is shown to other programs.
Bitmap PictureOf(const document::Page& page, const IconLayer& layer) {
    Bitmap picture(page.Width, page.Height);
    graphics::DrawingContext context(picture);
    context.SetInterpolationMode(graphics::InterpolationMode::HighQuality);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.DrawImageRect(CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight),
                          {0, 0, layer.Rect.Width, layer.Rect.Height});
    return picture;
}

struct Copied {
    IconLayer Layer;
    Bitmap Picture;  // for other programs
};

Copied Copy(const Editor& editor) {
    const bool isSelection = editor.Selection.Exists();
    IconLayer copy = isSelection ? CopyOfSelectedPixels(editor) : editor.Page().Selected();
    const Bitmap picture = isSelection ? copy.Image : PictureOf(editor.Page(), copy);
    Bitmap shown = CopyBitmap(picture, graphics::RoundToEven(copy.Rect.Width),
                              graphics::RoundToEven(copy.Rect.Height));
    return {std::move(copy), std::move(shown)};
}

// The last that a command does, for it can't be taken back.
void Put(Editor& editor, Copied copied) {
    editor.Clipboard.Put(copied.Picture, kClipboardMark);
    editor.ClipboardLayer = std::move(copied.Layer);
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

// Another program's picture at that place of the page, opaque: over white.
IconLayer ForeignLayer(const Bitmap& picture, int left, int top) {
    IconLayer layer;
    layer.Image = Bitmap(picture.Width(), picture.Height());
    graphics::DrawingContext context(layer.Image);
    context.Clear(graphics::MakeArgb(255, 255, 255, 255));
    context.DrawImage(picture, 0, 0);
    document::PlaceAt(layer, {left, top, picture.Width(), picture.Height()});
    layer.BaseRect = layer.Rect;
    layer.Region = graphics::Region::FromRect(layer.Rect);
    return layer;
}

bool IsOwn(Editor& editor) {
    return editor.ClipboardLayer && editor.Clipboard.Text() == kClipboardMark;
}

void AddPasted(Editor& editor, IconLayer layer) {
    BeginUndoStep(editor, steps::Paste);
    OpenLayerSlot(editor.Page(), document::SlotCopySize::Image) = std::move(layer);
    editor.Selection.Clear();
    ShowSelectedLayer(editor);
    NoteStack(editor.Changed);
}

void RemoveSelected(Editor& editor, steps::Name ofSelection, steps::Name ofLayer) {
    if (editor.Selection.Exists())
        RemoveSelection(editor, ofSelection);
    else
        RemoveLayer(editor, ofLayer);
}

}  // namespace

void CopyToClipboard(Editor& editor) {
    if (editor.Page().HasSelection() && !EndSelectionOffPage(editor))
        Put(editor, Copy(editor));
}

void CutToClipboard(Editor& editor) {
    if (!editor.Page().HasSelection() || EndSelectionOffPage(editor))
        return;
    Copied copied = Copy(editor);
    RemoveSelected(editor, steps::Cut, steps::Cut);
    Put(editor, std::move(copied));
}

void DeleteSelected(Editor& editor) {
    RemoveSelected(editor, steps::DeleteSelection, steps::DeleteLayer);
}

Bitmap ForeignPicture(Editor& editor) {
    if (!editor.DocumentExists || !editor.Clipboard.HasPicture() || IsOwn(editor))
        return {};
    return editor.Clipboard.Picture();
}

void PasteFromClipboard(Editor& editor) {
    if (!editor.DocumentExists || !editor.Clipboard.HasPicture())
        return;
    if (IsOwn(editor))
        AddPasted(editor, OwnLayer(*editor.ClipboardLayer));
    else
        PastePicture(editor, editor.Clipboard.Picture(), false);
}

void PastePicture(Editor& editor, const Bitmap& picture, bool fitsPage) {
    if (picture.IsEmpty())
        return;
    const document::Page& page = editor.Page();
    if (!fitsPage) {
        AddPasted(editor, ForeignLayer(picture, 0, 0));
        return;
    }
    const Bitmap fitted = filters::ShrinkIntoBox(picture, page.Width, page.Height);
    AddPasted(editor, ForeignLayer(fitted, (page.Width - fitted.Width()) / 2,
                                   (page.Height - fitted.Height()) / 2));
}

}  // namespace orbelle::editing
