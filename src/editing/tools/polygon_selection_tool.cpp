// Selects by a polygon: a point for each press, closed by the other button.
#include "editing/scene_mapping.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

namespace {

void Press(Editor& editor, const Pointer& pointer) {
    if (editor.Tools.OpenPopup == Popup::SelectionBar)
        editor.Tools.OpenPopup = Popup::None;
    editor.Overlays.SelectionFrame.Visible = false;
    editor.Drag = PolygonSelectionDrag{};
    if (editor.Selection.Exists() && !pointer.IsShiftAlone())
        editor.Selection.Start();
}

// A drag goes on adding points: freehand.
void Move(Editor& editor, Pointer& pointer) {
    const graphics::PointF onPage = ClampToScene(editor, pointer.X, pointer.Y);
    pointer.X = onPage.X;
    pointer.Y = onPage.Y;
    editor.PolygonPoints.push_back(ScreenToPage(MappingOf(editor), pointer.X, pointer.Y));
    editor.Changed.Scene = true;
}

// The points survive between presses.
AfterRelease Release(Editor&, const Pointer&) {
    return AfterRelease::HideTips;
}

}  // namespace

const ToolHandlers kPolygonSelectionTool = {Press, Move, Release};

}  // namespace orbelle::editing
