#include "editing/page_commands.h"

#include <algorithm>

#include "editing/view_commands.h"

namespace orbelle::editing {
namespace {

void ChangePageSide(Editor& editor, Slider& slider, int& side, int value) {
    if (editor.Controls.PageSliderLock)
        return;
    editor.Controls.PageSizeChanged = true;
    slider.Value = std::clamp(value, 1, document::kMaxPageSide);
    side = slider.Value;
    Compose(editor);
    editor.Host.ControlsChanged();
}

}  // namespace

void ChangePageWidth(Editor& editor, int value) {
    ChangePageSide(editor, editor.Controls.PageWidth, editor.Document.PageWidth, value);
}

void ChangePageHeight(Editor& editor, int value) {
    ChangePageSide(editor, editor.Controls.PageHeight, editor.Document.PageHeight, value);
}

void SetPageBackground(Editor& editor, graphics::Argb color) {
    editor.Document.PageBackground = color;
    Compose(editor);
    editor.Host.LayerPanelChanged();
}

void AskPageBackground(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    if (const auto color = editor.Host.AskColor(editor.Document.PageBackground))
        SetPageBackground(editor, graphics::SetAlphaByte(*color, 255));
}

}  // namespace orbelle::editing
