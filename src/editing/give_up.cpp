#include "editing/give_up.h"

#include "editing/page_commands.h"
#include "editing/slider_positions.h"
#include "editing/tools/polygon.h"

namespace orbelle::editing {
namespace {

template <typename... Kinds>
bool HoldsOneOf(const Drag& drag) {
    return (std::holds_alternative<Kinds>(drag) || ...);
}

}  // namespace

void GiveUpDrag(Editor& editor) {
    if (const auto* move = std::get_if<MoveDrag>(&editor.Drag)) {
        editor.Page().Selected().Rect = move->Before;
        editor.Changed.Pixels = true;
    } else if (const auto* stroke = std::get_if<StrokeDrag>(&editor.Drag)) {
        editor.Page().Selected().Image = stroke->Before;
        editor.Changed.Pixels = true;
    } else if (const auto* frame = std::get_if<FrameSelectionDrag>(&editor.Drag)) {
        editor.Overlays.SelectionFrame = {};
        editor.Selection = frame->Before;
        editor.Changed.Scene = true;
    } else if (const auto* page = std::get_if<PageSizeDrag>(&editor.Drag)) {
        TakeBackPageSize(editor, *page);
    }
    editor.Drag = {};
}

void CancelDrag(Editor& editor) {
    if (HoldsOneOf<OpacityDrag, AdjustmentDrag, ScaleDrag, EraserDrag>(editor.Drag)) {
        editor.History.TakeBack(editor.Document);
        ShowSelectedLayer(editor);
        NoteStack(editor.Changed);
    }
    GiveUpDrag(editor);
}

bool CancelInput(Editor& editor) {
    const bool isDragging = !std::holds_alternative<std::monostate>(editor.Drag);
    if (!isDragging && editor.PolygonPoints.empty())
        return false;
    CancelDrag(editor);
    DropPolygon(editor);
    editor.Changed.Scene = true;
    return true;
}

}  // namespace orbelle::editing
