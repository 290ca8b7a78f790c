#include "editing/tools/stroke.h"

#include "editing/tools/draw_shape.h"
#include "editing/undo_step.h"
#include "filters/create_region.h"

namespace orbelle::editing {

using graphics::SmoothingMode;

namespace {

steps::Name StepOf(Tool tool) {
    switch (tool) {
        case Tool::Line:
            return steps::Line;
        case Tool::Rectangle:
            return steps::Rectangle;
        case Tool::Ellipse:
            return steps::Ellipse;
        case Tool::FilledRectangle:
            return steps::FilledRectangle;
        case Tool::FilledEllipse:
            return steps::FilledEllipse;
        default:
            return steps::Pencil;
    }
}

}  // namespace

void BeginStroke(Editor& editor, const Pointer& pointer) {
    if (!editor.Page().HasSelection())
        return;
    editor.History.CheckRoom();
    editor.Drag = StrokeDrag{{pointer.X, pointer.Y}, editor.Page().Selected().Image, {}};
}

void PreviewStroke(Editor& editor, Pointer& pointer) {
    auto& drag = std::get<StrokeDrag>(editor.Drag);
    drag.Shape = ShapeArea(editor, drag, pointer);
    graphics::Bitmap& image = editor.Page().Selected().Image;
    image = drag.Before;
    DrawShape(editor, drag, image, pointer, SmoothingMode::None);
    editor.Changed.Pixels = true;
}

AfterRelease CommitStroke(Editor& editor, const Pointer& pointer) {
    const auto& drag = std::get<StrokeDrag>(editor.Drag);
    editor.Page().Selected().Image = drag.Before;
    BeginUndoStep(editor, StepOf(editor.Tools.InUse));
    document::IconLayer& layer = editor.Page().Selected();
    DrawShape(editor, drag, layer.Image, pointer,
              editor.Tools.InUse == Tool::Pencil ? SmoothingMode::None : SmoothingMode::AntiAlias);
    filters::RebuildRegion(layer.Region, layer.Image, {});
    editor.Changed.Stack = true;
    return AfterRelease::Compose;
}

}  // namespace orbelle::editing
