// Selects by a rectangle or an ellipse dragged over the page.
#include <algorithm>

#include "document/selection.h"
#include "editing/scene_mapping.h"
#include "editing/tools/object_keys.h"
#include "editing/tools/selection_start.h"
#include "editing/tools/tool_handlers.h"
#include "editing/view_commands.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

struct Frame {
    PointF Start;  // page pixels
    PointF End;    // one past the pixel under the pointer
};

Frame FrameTo(const Editor& editor, float x, float y) {
    const SceneMapping mapping = MappingOf(editor);
    const PointF start = ScreenToPage(mapping, editor.MouseDownX, editor.MouseDownY);
    const PointF end = ScreenToPage(mapping, x, y);
    return {start, {end.X + 1, end.Y + 1}};
}

void Press(Editor& editor, const Pointer& pointer) {
    editor.Controls.SelectionBarVisible = false;
    editor.Overlays.SelectionFrame = {true, editor.CurrentTool == Tool::SelectEllipse, {}};
    MoveStartOntoPage(editor, pointer);
    editor.DragActive = true;
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
    editor.Selection.AddFrame(std::min(RoundToEven(frame.End.X), editor.Document.PageWidth),
                              std::min(RoundToEven(frame.End.Y), editor.Document.PageHeight),
                              RoundToEven(frame.Start.X), RoundToEven(frame.Start.Y),
                              editor.CurrentTool == Tool::SelectEllipse
                                  ? document::FrameShape::Ellipse
                                  : document::FrameShape::Rectangle);
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    OverlayShape& shape = editor.Overlays.SelectionFrame;
    const bool moved =
        editor.LastMouseX != editor.MouseDownX || editor.LastMouseY != editor.MouseDownY;
    // A plain click ends the selection, with Shift too.
    if (!moved)
        editor.Selection.Clear();
    else if (shape.Rect.Width > 0 && shape.Rect.Height > 0)
        Select(editor, pointer);
    shape = {};
    DrawScene(editor);
    return AfterRelease::HideTips;
}

void Abandon(Editor& editor) {
    editor.Overlays.SelectionFrame = {};
}

}  // namespace

const ToolHandlers kFrameSelectionTool = {Press, Move, Release, Abandon, HandleObjectKey};

}  // namespace orbelle::editing
