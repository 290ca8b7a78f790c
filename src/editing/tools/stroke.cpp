#include "editing/tools/stroke.h"

#include "editing/tools/draw_shape.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "filters/create_region.h"

namespace orbelle::editing {

using graphics::SmoothingMode;

namespace {

void EndStroke(Editor& editor) {
    editor.PencilPoints.clear();
    editor.StrokeBackup = {};
}

}  // namespace

void BeginStroke(Editor& editor, const Pointer&) {
    if (!editor.Document.HasSelection())
        return;
    editor.StrokeBackup = editor.Document.Selected().Image;
    editor.DragActive = true;
}

void PreviewStroke(Editor& editor, Pointer& pointer) {
    graphics::Bitmap& image = editor.Document.Selected().Image;
    image = editor.StrokeBackup;
    DrawShape(editor, image, pointer, SmoothingMode::None);
    Compose(editor);
}

AfterRelease CommitStroke(Editor& editor, const Pointer& pointer) {
    editor.Document.Selected().Image = editor.StrokeBackup;
    BeginUndoStep(editor);
    document::IconLayer& layer = editor.Document.Selected();
    DrawShape(editor, layer.Image, pointer,
              editor.CurrentTool == Tool::Pencil ? SmoothingMode::None : SmoothingMode::AntiAlias);
    filters::CreateRegion(layer.Image, layer.Region, filters::kVisibleAlpha);
    EndStroke(editor);
    editor.Host.LayerPanelChanged();
    return AfterRelease::Compose;
}

void AbandonStroke(Editor& editor) {
    editor.Document.Selected().Image = editor.StrokeBackup;
    EndStroke(editor);
    Compose(editor);
}

}  // namespace orbelle::editing
