// The pencil eraser clears single pixels, the brush eraser softens round spots.
#include "editing/apply_layer_pixels.h"
#include "editing/scene_mapping.h"
#include "editing/tools/object_keys.h"
#include "editing/tools/tool_handlers.h"
#include "editing/undo_commands.h"

namespace orbelle::editing {
namespace {

constexpr double kBrushSpacing = 20;  // scene pixels, whatever the zoom

void Erase(Editor& editor, PixelFilter eraser, const SceneMapping& mapping,
           const Pointer& pointer) {
    const document::IconLayer& layer = editor.Document.Selected();
    const graphics::PointF pixel = ScreenToLayer(mapping, layer.Rect, pointer.X, pointer.Y);
    ApplyLayerPixels(editor, eraser, layer.Image, pixel.X, pixel.Y);
}

template <PixelFilter kEraser>
void Press(Editor& editor, const Pointer& pointer) {
    if (!editor.Document.HasSelection())
        return;
    BeginUndoStep(editor);
    editor.DragActive = true;
    Erase(editor, kEraser, MappingAtPress(editor), pointer);
}

void MovePencil(Editor& editor, Pointer& pointer) {
    Erase(editor, PixelFilter::PencilEraser, MappingOf(editor), pointer);
}

void MoveBrush(Editor& editor, Pointer& pointer) {
    const graphics::PointF last{editor.MouseDownX, editor.MouseDownY};
    if (Distance(last, {pointer.X, pointer.Y}) <= kBrushSpacing)
        return;
    Erase(editor, PixelFilter::BrushEraser, MappingOf(editor), pointer);
    editor.MouseDownX = pointer.X;
    editor.MouseDownY = pointer.Y;
}

// The layer's region deliberately stays as it was.
AfterRelease Release(Editor& editor, const Pointer&) {
    editor.Host.LayerPanelChanged();
    return AfterRelease::HideTips;
}

// What was erased is an undo step already.
void Abandon(Editor&) {}

}  // namespace

const ToolHandlers kPencilEraserTool = {Press<PixelFilter::PencilEraser>, MovePencil, Release,
                                        Abandon, HandleObjectKey};
const ToolHandlers kBrushEraserTool = {Press<PixelFilter::BrushEraser>, MoveBrush, Release, Abandon,
                                       HandleObjectKey};

}  // namespace orbelle::editing
