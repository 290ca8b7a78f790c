// Selects by a rectangle or an ellipse dragged over the page.
#include <algorithm>

#include "editing/scene_mapping.h"
#include "editing/tools/selection_start.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

struct Frame {
    PointF Start;  // page pixels
    PointF End;    // one past the pixel under the pointer
};

Frame FrameTo(const Editor& editor, float x, float y) {
    const SceneMapping mapping = MappingOf(editor);
    const PointF press = std::get<FrameSelectionDrag>(editor.Drag).Press;
    const PointF start = ScreenToPage(mapping, press.X, press.Y);
    const PointF end = ScreenToPage(mapping, x, y);
    return {start, {end.X + 1, end.Y + 1}};
}

void Press(Editor& editor, const Pointer& pointer) {
    if (editor.Tools.OpenPopup == Popup::SelectionBar)
        editor.Tools.OpenPopup = Popup::None;
    editor.Overlays.SelectionFrame = {true, editor.Tools.InUse == Tool::SelectEllipse, {}};
    editor.Drag = FrameSelectionDrag{StartOnPage(editor, pointer)};
    if (!pointer.IsShiftAlone())
        editor.Selection.Start();
}

void Move(Editor& editor, Pointer& pointer) {
    const PointF onPage = ClampToScene(editor, pointer.X, pointer.Y);
    pointer.X = onPage.X;
    pointer.Y = onPage.Y;
    const Frame frame = FrameTo(editor, pointer.X, pointer.Y);
    const graphics::RectF box =
        document::NormalizeRect(frame.End.X, frame.End.Y, frame.Start.X, frame.Start.Y);
    const SceneMapping mapping = MappingOf(editor);
    editor.Overlays.SelectionFrame.Rect = {
        static_cast<float>(mapping.PageOffsetX + box.X * mapping.Zoom),
        static_cast<float>(mapping.PageOffsetY + box.Y * mapping.Zoom),
        static_cast<float>(box.Width * mapping.Zoom),
        static_cast<float>(box.Height * mapping.Zoom),
    };
}

void Select(Editor& editor, const Pointer& pointer) {
    const PointF onPage = ClampToScene(editor, pointer.X, pointer.Y);
    const Frame frame = FrameTo(editor, onPage.X, onPage.Y);
    using graphics::RoundToEven;
    editor.Selection.AddFrame(std::min(RoundToEven(frame.End.X), editor.Page().Width),
                              std::min(RoundToEven(frame.End.Y), editor.Page().Height),
                              RoundToEven(frame.Start.X), RoundToEven(frame.Start.Y),
                              editor.Tools.InUse == Tool::SelectEllipse
                                  ? document::FrameShape::Ellipse
                                  : document::FrameShape::Rectangle);
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    OverlayShape& shape = editor.Overlays.SelectionFrame;
    // A plain click ends the selection, with Shift too.
    if (editor.LastPointer == std::get<FrameSelectionDrag>(editor.Drag).Press)
        editor.Selection.Clear();
    else if (shape.Rect.Width > 0 && shape.Rect.Height > 0)
        Select(editor, pointer);
    shape = {};
    editor.Changed.Scene = true;
    return AfterRelease::HideTips;
}

}  // namespace

const ToolHandlers kFrameSelectionTool = {Press, Move, Release};

}  // namespace orbelle::editing
