// Draws freehand, one pixel wide. The line from the press through all points is drawn anew at each
// move.
#include "editing/scene_mapping.h"
#include "editing/tools/stroke.h"

namespace orbelle::editing {
namespace {

void AddPoint(Editor& editor, const Pointer& pointer) {
    std::get<StrokeDrag>(editor.Drag)
        .Freehand.push_back(
            ScreenToLayer(MappingOf(editor), editor.Page().Selected().Rect, pointer.X, pointer.Y));
}

void Press(Editor& editor, const Pointer& pointer) {
    BeginStroke(editor, pointer);
    if (editor.Page().HasSelection())
        AddPoint(editor, pointer);
}

void Move(Editor& editor, Pointer& pointer) {
    AddPoint(editor, pointer);
    PreviewStroke(editor, pointer);
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    AddPoint(editor, pointer);
    return CommitStroke(editor, pointer);
}

}  // namespace

const ToolHandlers kPencilTool = {Press, Move, Release};

}  // namespace orbelle::editing
