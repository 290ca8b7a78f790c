// Picks the layer under the pointer and drags it.
#include "editing/scene_mapping.h"
#include "editing/selection_commands.h"
#include "editing/slider_positions.h"
#include "editing/tools/tool_handlers.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"

namespace orbelle::editing {
namespace {

void StartDrag(Editor& editor, const Pointer& pointer) {
    editor.Drag = MoveDrag{{pointer.X, pointer.Y}, editor.Page().Selected().Rect};
}

// The topmost visible layer with a pixel there. With no visible layer at all the selected layer
// stays so (docs/oddities.md, "Nothing to pick").
void Pick(Editor& editor, const Pointer& pointer) {
    const graphics::PointF pixel = ScreenToPage(MappingOf(editor), pointer.X, pointer.Y);
    document::Page& page = editor.Page();
    for (int i = page.LayerCount() - 1; i >= 0; --i) {
        const document::IconLayer& layer = page.Layers[static_cast<std::size_t>(i)];
        if (!layer.Visible)
            continue;
        if (layer.Region.IsVisiblePoint(pixel.X, pixel.Y)) {
            page.SelectedLayer = i;
            StartDrag(editor, pointer);
            ShowSelectedLayer(editor);
            return;
        }
        page.SelectedLayer = document::kNoLayer;
        editor.Drag = {};
    }
}

void Press(Editor& editor, const Pointer& pointer) {
    if (editor.Selection.Exists() && !EndSelectionOffPage(editor))
        FloatSelection(editor);
    if (editor.Page().HasSelection())
        StartDrag(editor, pointer);
    Pick(editor, pointer);
    editor.Changed.Stack = true;
}

void Move(Editor& editor, Pointer& pointer) {
    const auto& drag = std::get<MoveDrag>(editor.Drag);
    graphics::RectF& rect = editor.Page().Selected().Rect;
    const auto moved = [&editor](float start, float now, float down) {
        return static_cast<float>(
            graphics::RoundToEven(start + (double{now} - down) / editor.View.Zoom));
    };
    rect.X = moved(drag.Before.X, pointer.X, drag.Press.X);
    rect.Y = moved(drag.Before.Y, pointer.Y, drag.Press.Y);
    editor.Changed.Pixels = true;
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    const auto& [press, before] = std::get<MoveDrag>(editor.Drag);
    if (graphics::PointF{pointer.X, pointer.Y} == press)
        return AfterRelease::Compose;
    // The step to undo holds the place before the drag.
    const graphics::RectF moved = editor.Page().Selected().Rect;
    editor.Page().Selected().Rect = before;
    BeginUndoStep(editor, steps::MoveLayer);
    document::IconLayer& layer = editor.Page().Selected();
    layer.Rect = moved;
    // A picture without a visible pixel keeps its region, which then moves twice
    // (docs/oddities.md, "Blank pictures").
    layer.Region.Translate(moved.X - before.X, moved.Y - before.Y);
    filters::RebuildRegion(layer.Region, layer.Image, {moved.X, moved.Y});
    return AfterRelease::HideTips;
}

}  // namespace

const ToolHandlers kMoveTool = {Press, Move, Release};

}  // namespace orbelle::editing
