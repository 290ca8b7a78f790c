// Picks the layer under the pointer and drags it.
#include "editing/clipboard_commands.h"
#include "editing/layer_commands.h"
#include "editing/scene_mapping.h"
#include "editing/tools/object_keys.h"
#include "editing/tools/tool_handlers.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "filters/create_region.h"

namespace orbelle::editing {
namespace {

void StartDrag(Editor& editor) {
    editor.DragActive = true;
    editor.LayerStartX = editor.Document.Selected().Rect.X;
    editor.LayerStartY = editor.Document.Selected().Rect.Y;
}

// The topmost visible layer with a pixel there. Deliberately, with no visible layer at all the
// selection stays.
void Pick(Editor& editor, graphics::PointF page) {
    document::Document& document = editor.Document;
    for (int i = document.LayerCount() - 1; i >= 0; --i) {
        const document::IconLayer& layer = document.Layers[static_cast<std::size_t>(i)];
        if (!layer.Visible)
            continue;
        if (layer.Region.IsVisiblePoint(page.X, page.Y)) {
            document.SelectedLayer = i;
            StartDrag(editor);
            ShowLayerSliders(editor);
            ShowLayerAdjust(editor, i);
            return;
        }
        document.SelectedLayer = document::kNoLayer;
        editor.DragActive = false;
    }
}

void Press(Editor& editor, const Pointer& pointer) {
    if (editor.Selection.Exists())
        FloatSelection(editor);
    if (editor.Document.HasSelection())
        StartDrag(editor);
    Pick(editor, ScreenToPage(MappingAtPress(editor), pointer.X, pointer.Y));
    UpdateLayerButtons(editor);
    editor.Host.LayerPanelChanged();
}

void Move(Editor& editor, Pointer& pointer) {
    graphics::RectF& rect = editor.Document.Selected().Rect;
    const auto moved = [&editor](float start, float now, float down) {
        return static_cast<float>(
            graphics::RoundToEven(start + (double{now} - down) / editor.View.Zoom));
    };
    rect.X = moved(editor.LayerStartX, pointer.X, editor.MouseDownX);
    rect.Y = moved(editor.LayerStartY, pointer.Y, editor.MouseDownY);
    Compose(editor);
}

void PutBack(Editor& editor) {
    graphics::RectF& rect = editor.Document.Selected().Rect;
    rect.X = editor.LayerStartX;
    rect.Y = editor.LayerStartY;
}

AfterRelease Release(Editor& editor, const Pointer& pointer) {
    if (pointer.X == editor.MouseDownX && pointer.Y == editor.MouseDownY)
        return AfterRelease::Compose;
    // The step to undo holds the place before the drag.
    const graphics::RectF moved = editor.Document.Selected().Rect;
    PutBack(editor);
    BeginUndoStep(editor);
    document::IconLayer& layer = editor.Document.Selected();
    layer.Rect = moved;
    // A picture without a visible pixel keeps its region, which then deliberately moves twice.
    layer.Region.Translate(moved.X - editor.LayerStartX, moved.Y - editor.LayerStartY);
    filters::CreateRegion(layer.Image, layer.Region, filters::kVisibleAlpha);
    layer.Region.Translate(moved.X, moved.Y);
    return AfterRelease::HideTips;
}

void Abandon(Editor& editor) {
    PutBack(editor);
    Compose(editor);
}

}  // namespace

const ToolHandlers kMoveTool = {Press, Move, Release, Abandon, HandleObjectKey};

}  // namespace orbelle::editing
