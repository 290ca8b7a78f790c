// Selects by a polygon: a point for each press, closed by the other button.
#include "editing/scene_input.h"
#include "editing/scene_mapping.h"
#include "editing/tools/object_keys.h"
#include "editing/tools/selection_start.h"
#include "editing/tools/tool_handlers.h"
#include "editing/view_commands.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

void Press(Editor& editor, const Pointer& pointer) {
    editor.Controls.SelectionBarVisible = false;
    editor.Overlays.SelectionFrame.Visible = false;
    MoveStartOntoPage(editor, pointer);
    editor.DragActive = true;
    if (editor.Selection.Exists() && !pointer.IsShiftAlone())
        editor.Selection.Start();
    // The point comes in as with a move.
    MoveScene(editor, pointer);
}

// A drag goes on adding points. Each is deliberately the upper left corner of the box between press
// and pointer, so that only drags to the left or up draw freehand.
void Move(Editor& editor, Pointer& pointer) {
    const PointF onPage = ClampToScene(editor, pointer.X, pointer.Y);
    pointer.X = onPage.X;
    pointer.Y = onPage.Y;
    const SceneMapping mapping = MappingOf(editor);
    const PointF start = ScreenToPage(mapping, editor.MouseDownX, editor.MouseDownY);
    if (editor.PolygonPoints.empty()) {
        editor.PolygonPoints.push_back(start);
    } else {
        const PointF end = ScreenToPage(mapping, pointer.X, pointer.Y);
        const graphics::RectF box = document::NormalizeRect(end.X, end.Y, start.X, start.Y);
        editor.PolygonPoints.push_back({box.X, box.Y});
    }
    DrawScene(editor);
}

AfterRelease Release(Editor&, const Pointer&) {
    return AfterRelease::HideTips;
}

// The points survive between presses.
void Abandon(Editor&) {}

}  // namespace

const ToolHandlers kPolygonSelectionTool = {Press, Move, Release, Abandon, HandleObjectKey};

}  // namespace orbelle::editing
