// Draws freehand, one pixel wide. The line through all points is drawn anew at each move.
#include "editing/scene_mapping.h"
#include "editing/tools/stroke.h"

namespace orbelle::editing {
namespace {

// Makes the second point of a click: two equal ones would draw nothing.
constexpr double kClickLength = 0.449;

graphics::PointF AddPoint(Editor& editor, const Pointer& pointer) {
    const graphics::PointF pixel =
        ScreenToLayer(MappingOf(editor), editor.Page().Selected().Rect, pointer.X, pointer.Y);
    std::get<StrokeDrag>(editor.Drag).Freehand.push_back(pixel);
    return pixel;
}

void Move(Editor& editor, Pointer& pointer) {
    AddPoint(editor, pointer);
    PreviewStroke(editor, pointer);
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    const graphics::PointF pixel = AddPoint(editor, pointer);
    auto& points = std::get<StrokeDrag>(editor.Drag).Freehand;
    if (points.size() == 1)
        points.push_back({static_cast<float>(pixel.X + kClickLength),
                          static_cast<float>(pixel.Y + kClickLength)});
    return CommitStroke(editor, pointer);
}

}  // namespace

const ToolHandlers kPencilTool = {BeginStroke, Move, Release};

}  // namespace orbelle::editing
