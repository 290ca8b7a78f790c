// The pencil eraser clears single pixels, the brush eraser softens round spots.
#include "editing/layer_pixels.h"
#include "editing/scene_mapping.h"
#include "editing/tools/mirror.h"
#include "editing/tools/tool_handlers.h"
#include "editing/undo_step.h"
#include "filters/erasers.h"

namespace orbelle::editing {
namespace {

// Scene pixels, whatever the zoom (docs/oddities.md, "Brush spacing").
constexpr double kBrushSpacing = 20;

using Eraser = void (*)(const Editor&, graphics::Bitmap&, int x, int y);

void ErasePixel(const Editor&, graphics::Bitmap& image, int x, int y) {
    filters::EraseColor(image, x, y);
}

void EraseSpot(const Editor& editor, graphics::Bitmap& image, int x, int y) {
    filters::EraseTool(image, x, y, editor.Sliders.BrushSize.Value,
                       editor.Sliders.BrushOpacity.Value / 2);
}

void Erase(Editor& editor, Eraser eraser, const SceneMapping& mapping, const Pointer& pointer) {
    const document::IconLayer& layer = editor.Page().Selected();
    const graphics::PointF pixel = ScreenToLayer(mapping, layer.Rect, pointer.X, pointer.Y);
    FilterLayerPixels(editor, layer.Image, [&](graphics::Bitmap& image) {
        EraseMirrored(editor, image, pixel, [&](graphics::Bitmap& picture, int x, int y) {
            eraser(editor, picture, x, y);
        });
    });
}

template <Eraser kEraser, const steps::Name& kStep>
void Press(Editor& editor, const Pointer& pointer) {
    if (!editor.Page().HasSelection())
        return;
    BeginUndoStep(editor, kStep);
    editor.Drag = EraserDrag{{pointer.X, pointer.Y}};
    Erase(editor, kEraser, MappingOf(editor), pointer);
}

void MovePencil(Editor& editor, Pointer& pointer) {
    Erase(editor, ErasePixel, MappingOf(editor), pointer);
}

void MoveBrush(Editor& editor, Pointer& pointer) {
    auto& drag = std::get<EraserDrag>(editor.Drag);
    if (Distance(drag.Last, {pointer.X, pointer.Y}) <= kBrushSpacing)
        return;
    Erase(editor, EraseSpot, MappingOf(editor), pointer);
    drag.Last = {pointer.X, pointer.Y};
}

// The layer's region stays as it was (docs/oddities.md, "Region after erasing").
AfterRelease Release(Editor& editor, const Pointer&) {
    editor.Changed.Stack = true;
    return AfterRelease::HideTips;
}

}  // namespace

const ToolHandlers kPencilEraserTool = {Press<ErasePixel, steps::PencilEraser>, MovePencil,
                                        Release};
const ToolHandlers kBrushEraserTool = {Press<EraseSpot, steps::BrushEraser>, MoveBrush, Release};

}  // namespace orbelle::editing
