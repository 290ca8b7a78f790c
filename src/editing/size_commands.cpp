#include "editing/size_commands.h"

#include <string>
#include <utility>

#include "document/layer_slots.h"
#include "editing/page_commands.h"
#include "editing/slider_positions.h"
#include "editing/undo_step.h"
#include "editing/view_commands.h"
#include "graphics/errors.h"

namespace orbelle::editing {
namespace {

using document::Family;

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

std::string NameOfSize(int size) {
    return std::to_string(size) + " x " + std::to_string(size);
}

}  // namespace

void GoToPage(Editor& editor, int size) {
    if (size == editor.Document.EditedSize)
        return;
    if (size != Family::kMaster && !editor.Document.ArtworkOf(size))
        throw Error("the size " + NameOfSize(size) + " has no artwork of its own");
    BringInForce(editor, size);
}

void MakeArtwork(Editor& editor, int size, filters::SizeRecipe recipe) {
    if (size < document::kMinArtworkSize || size > document::kMaxArtworkSize)
        throw Error("artwork of its own has a size of " +
                    std::to_string(document::kMinArtworkSize) + " to " +
                    std::to_string(document::kMaxArtworkSize));
    const bool isMaster = editor.Document.EditedSize == Family::kMaster;
    const graphics::Bitmap master =
        isMaster ? editor.Canvas : document::Flatten(editor.Document.Master);
    document::Page page = document::MakePicturePage(ApplyRecipe(recipe, master, size));
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

void ShowPageInForce(Editor& editor) {
    editor.Selection.Clear();
    editor.PolygonPoints.clear();
    editor.Overlays = {};
    ShowSelectedLayer(editor);
    ShowSizeOfPage(editor);
    ShowView(editor);
    NoteStack(editor.Changed);
    editor.Changed.Title = true;
}

}  // namespace orbelle::editing
