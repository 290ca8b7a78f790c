// Selects by a rectangle or an ellipse dragged over the page.
#include <algorithm>
#include <cmath>

#include "editing/scene_mapping.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

using graphics::PointF;
using graphics::RectF;

namespace {

// Beside the page its first or last pixel.
PointF PagePixel(const Editor& editor, PointF scene) {
    const PointF pixel = ScreenToPage(MappingOf(editor), scene.X, scene.Y);
    return {std::clamp(pixel.X, 0.0F, static_cast<float>(editor.Page().Width - 1)),
            std::clamp(pixel.Y, 0.0F, static_cast<float>(editor.Page().Height - 1))};
}

// From the pixel of the press to that of the pointer, both included. Page pixels.
RectF BoxTo(const Editor& editor, const Pointer& pointer) {
    const PointF start = PagePixel(editor, std::get<FrameSelectionDrag>(editor.Drag).Press);
    const PointF end = PagePixel(editor, {pointer.X, pointer.Y});
    return {std::min(start.X, end.X), std::min(start.Y, end.Y), std::abs(end.X - start.X) + 1,
            std::abs(end.Y - start.Y) + 1};
}

void Press(Editor& editor, const Pointer& pointer) {
    if (editor.Tools.OpenPopup == Popup::SelectionBar)
        editor.Tools.OpenPopup = Popup::None;
    editor.Overlays.SelectionFrame = {true, editor.Tools.InUse == Tool::SelectEllipse, {}};
    editor.Drag = FrameSelectionDrag{ClampToScene(editor, pointer.X, pointer.Y), editor.Selection};
    if (!pointer.IsShiftAlone())
        editor.Selection.Start();
}

void Move(Editor& editor, Pointer& pointer) {
    const PointF onPage = ClampToScene(editor, pointer.X, pointer.Y);
    pointer.X = onPage.X;
    pointer.Y = onPage.Y;
    const RectF box = BoxTo(editor, pointer);
    std::get<FrameSelectionDrag>(editor.Drag).Box = box;
    const SceneMapping mapping = MappingOf(editor);
    editor.Overlays.SelectionFrame.Rect = {
        static_cast<float>(mapping.PageOffsetX + box.X * mapping.Zoom),
        static_cast<float>(mapping.PageOffsetY + box.Y * mapping.Zoom),
        static_cast<float>(box.Width * mapping.Zoom),
        static_cast<float>(box.Height * mapping.Zoom),
    };
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    OverlayShape& shape = editor.Overlays.SelectionFrame;
    // A plain click ends the selection, with Shift too.
    if (editor.LastPointer == std::get<FrameSelectionDrag>(editor.Drag).Press)
        editor.Selection.Clear();
    else if (shape.Rect.Width > 0 && shape.Rect.Height > 0)
        editor.Selection.AddFrame(BoxTo(editor, pointer), editor.Tools.InUse == Tool::SelectEllipse
                                                              ? document::FrameShape::Ellipse
                                                              : document::FrameShape::Rectangle);
    shape = {};
    editor.Changed.Scene = true;
    return AfterRelease::HideTips;
}

}  // namespace

const ToolHandlers kFrameSelectionTool = {Press, Move, Release};

}  // namespace orbelle::editing
