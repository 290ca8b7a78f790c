#include "editing/size_commands.h"

#include <string>
#include <utility>

#include "document/layer_slots.h"
#include "editing/page_commands.h"
#include "editing/slider_positions.h"
#include "editing/title.h"
#include "editing/undo_step.h"
#include "editing/view_commands.h"
#include "filters/shrink_to_size.h"
#include "graphics/errors.h"

namespace orbelle::editing {
namespace {

using document::Family;
using document::NameOfSize;

// The view of the master comes back as it was left; small pages are seen as large as they fit.
void ShowView(Editor& editor) {
    ZoomState& zoom = editor.Zoom;
    zoom.IsAnimated = false;
    zoom.IsOriginalSize = false;
    if (editor.Document.EditedSize != Family::kMaster) {
        if (!zoom.MasterView)
            zoom.MasterView = editor.View;
        FitWhole(editor);
    } else if (const auto master = std::exchange(zoom.MasterView, std::nullopt)) {
        editor.View.Zoom = master->Zoom;
        editor.View.HorizontalScroll = master->HorizontalScroll;
        editor.View.VerticalScroll = master->VerticalScroll;
        FitScrollBars(editor);
    }
}

void BringInForce(Editor& editor, int size) {
    editor.Document.EditedSize = size;
    ShowPageInForce(editor);
}

void RequireCanHaveArtwork(int size) {
    if (size < document::kMinArtworkSize || size > document::kMaxArtworkSize)
        throw Error("artwork of its own has a size of " +
                    std::to_string(document::kMinArtworkSize) + " to " +
                    std::to_string(document::kMaxArtworkSize));
}

graphics::Bitmap PictureOfSize(const Editor& editor, int size) {
    const document::Document& document = editor.Document;
    const document::Page* artwork = document.ArtworkOf(size);
    if (!artwork)
        return filters::ShrinkToSize(MasterPicture(editor), size);
    return document.EditedSize == size ? editor.Canvas : document::Flatten(*artwork);
}

// Each pixel a hard square, as even as the sizes allow.
graphics::Bitmap Enlarged(const graphics::Bitmap& picture, int size) {
    graphics::Bitmap enlarged(size, size);
    for (int y = 0; y < size; ++y) {
        const graphics::Argb* row = picture.Row(y * picture.Height() / size);
        graphics::Argb* to = enlarged.MutableRow(y);
        for (int x = 0; x < size; ++x)
            to[x] = row[x * picture.Width() / size];
    }
    return enlarged;
}

}  // namespace

void GoToPage(Editor& editor, int size) {
    if (size == editor.Document.EditedSize)
        return;
    if (size != Family::kMaster && !editor.Document.ArtworkOf(size))
        throw Error("the size " + NameOfSize(size) + " has no artwork of its own");
    BringInForce(editor, size);
}

graphics::Bitmap MasterPicture(const Editor& editor) {
    return editor.Document.EditedSize == Family::kMaster
               ? editor.Canvas
               : document::Flatten(editor.Document.Master);
}

void MakeArtwork(Editor& editor, int size, filters::SizeRecipe recipe) {
    RequireCanHaveArtwork(size);
    document::Page page =
        document::MakePicturePage(ApplyRecipe(recipe, MasterPicture(editor), size));
    BeginUndoStepTo(editor, steps::DrawByHand, size);
    editor.Document.SetArtwork(size, std::move(page));
    BringInForce(editor, size);
}

void EditSize(Editor& editor, int size) {
    if (size != Family::kMaster && !editor.Document.ArtworkOf(size))
        MakeArtwork(editor, size, filters::SizeRecipe::Plain);
    else
        GoToPage(editor, size);
}

void DropArtwork(Editor& editor, int size) {
    if (!editor.Document.ArtworkOf(size))
        throw Error("the size " + NameOfSize(size) + " has no artwork of its own");
    BeginUndoStepTo(editor, steps::BackToMaster, Family::kMaster);
    editor.Document.RemoveArtwork(size);
    BringInForce(editor, Family::kMaster);
}

void CopyToSize(Editor& editor, int from, int to) {
    RequireCanHaveArtwork(to);
    if (from == to)
        throw Error("a size can't be copied to itself");
    const graphics::Bitmap picture = PictureOfSize(editor, from);
    document::Page page = document::MakePicturePage(from < to ? Enlarged(picture, to)
                                                              : filters::ShrinkToSize(picture, to));
    BeginUndoStepTo(editor, steps::CopyToSize, to);
    editor.Document.SetArtwork(to, std::move(page));
    BringInForce(editor, to);
}

void GoToNextPage(Editor& editor) {
    GoToPage(editor, editor.Document.Neighbour(1).value_or(editor.Document.EditedSize));
}

void GoToPreviousPage(Editor& editor) {
    GoToPage(editor, editor.Document.Neighbour(-1).value_or(editor.Document.EditedSize));
}

void ShowPageInForce(Editor& editor) {
    editor.Selection.Clear();
    editor.PolygonPoints.clear();
    editor.Overlays = {};
    ShowSelectedLayer(editor);
    ShowSizeOfPage(editor);
    ShowView(editor);
    NoteStack(editor.Changed);
    ShowTitle(editor);
}

}  // namespace orbelle::editing
