#include "editing/page_commands.h"

#include <utility>

#include "editing/undo_step.h"
#include "editing/view_commands.h"
#include "graphics/errors.h"

namespace orbelle::editing {
namespace {

struct Side {
    Slider Sliders::*Shown;
    int document::Page::*Length;
};

constexpr Side kWidth = {&Sliders::PageWidth, &document::Page::Width};
constexpr Side kHeight = {&Sliders::PageHeight, &document::Page::Height};

bool HasSizeOf(const document::Page& page, const PageSizeDrag& drag) {
    return page.Width == drag.Width && page.Height == drag.Height;
}

// During the drag the scroll bars are worked out from those at the press, so that the rounding of
// many steps does not add up.
void ChangeSide(Editor& editor, const Side& side, int value) {
    const auto* drag = std::get_if<PageSizeDrag>(&editor.Drag);
    const int length = (editor.Sliders.*side.Shown).Clamped(value);
    if (!drag || editor.Page().*side.Length == length)
        return;
    editor.Page().*side.Length = length;
    ShowSizeOfPage(editor);
    const bool changes = !HasSizeOf(editor.Page(), *drag);
    editor.Document.Modified = drag->Modified || changes;
    editor.Zoom.PageSizeChanged = drag->PageSizeChanged || changes;
    editor.View.HorizontalScroll = drag->HorizontalScroll;
    editor.View.VerticalScroll = drag->VerticalScroll;
    if (changes)
        FitScrollBars(editor);
    editor.Changed.Pixels = true;
}

void SetSide(Editor& editor, const Side& side, int value) {
    if ((editor.Sliders.*side.Shown).Clamped(value) == editor.Page().*side.Length)
        return;
    PressPageSize(editor);
    ChangeSide(editor, side, value);
    ReleasePageSize(editor);
}

}  // namespace

void ShowSizeOfPage(Editor& editor) {
    for (const Side& side : {kWidth, kHeight})
        (editor.Sliders.*side.Shown).Value = editor.Page().*side.Length;
}

void PressPageSize(Editor& editor) {
    if (!editor.DocumentExists || editor.Document.EditedSize != document::Family::kMaster)
        return;
    editor.History.CheckRoom();
    editor.Drag = PageSizeDrag{editor.Page().Width,          editor.Page().Height,
                               editor.Document.Modified,     editor.Zoom.PageSizeChanged,
                               editor.View.HorizontalScroll, editor.View.VerticalScroll};
}

void ChangePageWidth(Editor& editor, int value) {
    ChangeSide(editor, kWidth, value);
}

void ChangePageHeight(Editor& editor, int value) {
    ChangeSide(editor, kHeight, value);
}

void ReleasePageSize(Editor& editor) {
    const auto* drag = std::get_if<PageSizeDrag>(&editor.Drag);
    if (!drag)
        return;
    document::Page& page = editor.Page();
    const bool changes = !HasSizeOf(page, *drag);
    if (changes) {
        // The step to undo holds the size before the drag.
        const int width = std::exchange(page.Width, drag->Width);
        const int height = std::exchange(page.Height, drag->Height);
        BeginUndoStep(editor, steps::PageSize);
        page.Width = width;
        page.Height = height;
    }
    editor.Drag = {};
    if (changes)
        FollowScene(editor);
}

void TakeBackPageSize(Editor& editor, const PageSizeDrag& drag) {
    editor.Page().Width = drag.Width;
    editor.Page().Height = drag.Height;
    ShowSizeOfPage(editor);
    editor.Document.Modified = drag.Modified;
    editor.Zoom.PageSizeChanged = drag.PageSizeChanged;
    editor.View.HorizontalScroll = drag.HorizontalScroll;
    editor.View.VerticalScroll = drag.VerticalScroll;
    FitScrollBars(editor);
    editor.Changed.Pixels = true;
    editor.Changed.Controls = true;
}

void SetPageSize(Editor& editor, int width, int height) {
    if (editor.Document.EditedSize != document::Family::kMaster)
        throw Error("the artwork of a size keeps its size");
    SetSide(editor, kWidth, width);
    SetSide(editor, kHeight, height);
}

void FollowPageSize(Editor& editor) {
    const Sliders& sliders = editor.Sliders;
    const document::Page& page = editor.Page();
    if (sliders.PageWidth.Value == page.Width && sliders.PageHeight.Value == page.Height)
        return;
    ShowSizeOfPage(editor);
    editor.Zoom.PageSizeChanged = true;
    FitScrollBars(editor);
    FollowScene(editor);
    editor.Selection.KeepOnPage(page.Width, page.Height);
    editor.Changed.Pixels = true;
}

void SetPageBackground(Editor& editor, graphics::Argb color) {
    if (editor.Document.Background == color)
        return;
    BeginUndoStep(editor, steps::PageBackground);
    editor.Document.Background = color;
    NoteStack(editor.Changed);
}

}  // namespace orbelle::editing
