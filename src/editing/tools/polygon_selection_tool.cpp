// Selects by a polygon: a point for each press, closed by the other button.
#include "editing/scene_mapping.h"
#include "editing/tools/selection_start.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

void Press(Editor& editor, const Pointer& pointer) {
    if (editor.Tools.OpenPopup == Popup::SelectionBar)
        editor.Tools.OpenPopup = Popup::None;
    editor.Overlays.SelectionFrame.Visible = false;
    editor.Drag = PolygonSelectionDrag{StartOnPage(editor, pointer)};
    if (editor.Selection.Exists() && !pointer.IsShiftAlone())
        editor.Selection.Start();
}

// A drag goes on adding points. Each is the upper left corner of the box between press and pointer,
// so that only drags to the left or up draw freehand (docs/oddities.md, "Freehand polygons").
void Move(Editor& editor, Pointer& pointer) {
    const PointF onPage = ClampToScene(editor, pointer.X, pointer.Y);
    pointer.X = onPage.X;
    pointer.Y = onPage.Y;
    const SceneMapping mapping = MappingOf(editor);
    const PointF press = std::get<PolygonSelectionDrag>(editor.Drag).Press;
    const PointF start = ScreenToPage(mapping, press.X, press.Y);
    if (editor.PolygonPoints.empty()) {
        editor.PolygonPoints.push_back(start);
    } else {
        const PointF end = ScreenToPage(mapping, pointer.X, pointer.Y);
        const graphics::RectF box = document::NormalizeRect(end.X, end.Y, start.X, start.Y);
        editor.PolygonPoints.push_back({box.X, box.Y});
    }
    editor.Changed.Scene = true;
}

// The points survive between presses.
AfterRelease Release(Editor&, const Pointer&) {
    return AfterRelease::HideTips;
}

}  // namespace

const ToolHandlers kPolygonSelectionTool = {Press, Move, Release};

}  // namespace orbelle::editing
