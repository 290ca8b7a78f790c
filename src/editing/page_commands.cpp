#include "editing/page_commands.h"

namespace orbelle::editing {
namespace {

void ChangePageSide(Editor& editor, Slider& slider, int& side, int value) {
    editor.Zoom.PageSizeChanged = true;
    slider.Value = slider.Clamped(value);
    side = slider.Value;
    editor.Changed.Pixels = true;
}

}  // namespace

void ChangePageWidth(Editor& editor, int value) {
    ChangePageSide(editor, editor.Sliders.PageWidth, editor.Page().Width, value);
}

void ChangePageHeight(Editor& editor, int value) {
    ChangePageSide(editor, editor.Sliders.PageHeight, editor.Page().Height, value);
}

void SetPageBackground(Editor& editor, graphics::Argb color) {
    editor.Document.Background = color;
    NoteStack(editor.Changed);
}

}  // namespace orbelle::editing
