#include "editing/drag_readout.h"

namespace orbelle::editing {
namespace {

using graphics::RectF;
using graphics::RectI;
using graphics::RoundToEven;

RectI Rounded(const RectF& rect) {
    return {RoundToEven(rect.X), RoundToEven(rect.Y), RoundToEven(rect.Width),
            RoundToEven(rect.Height)};
}

}  // namespace

std::optional<DragReadout> ReadoutOf(const EditorState& editor) {
    if (const auto* move = std::get_if<MoveDrag>(&editor.Drag)) {
        const RectF& rect = editor.Page().Selected().Rect;
        return DragReadout{Rounded(rect), true, RoundToEven(rect.X - move->Before.X),
                           RoundToEven(rect.Y - move->Before.Y)};
    }
    RectF area;
    if (const auto* stroke = std::get_if<StrokeDrag>(&editor.Drag))
        area = stroke->Shape;
    else if (const auto* frame = std::get_if<FrameSelectionDrag>(&editor.Drag))
        area = frame->Box;
    if (area == RectF())
        return std::nullopt;
    return DragReadout{Rounded(area)};
}

}  // namespace orbelle::editing
