#include "editing/tools/object_keys.h"

#include "editing/stack_commands.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"

namespace orbelle::editing {
namespace {

void Nudge(Editor& editor, float dx, float dy) {
    BeginUndoStep(editor);
    document::IconLayer& layer = editor.Document.Selected();
    layer.Rect.X += dx;
    layer.Rect.Y += dy;
    layer.Region.Translate(dx, dy);
    Compose(editor);
}

}  // namespace

void HandleObjectKey(Editor& editor, int keyCode) {
    editor.Document.Modified = true;
    switch (keyCode) {
        case key_codes::Left:
            return Nudge(editor, -1, 0);
        case key_codes::Up:
            return Nudge(editor, 0, -1);
        case key_codes::Right:
            return Nudge(editor, 1, 0);
        case key_codes::Down:
            return Nudge(editor, 0, 1);
        case key_codes::Delete:
            return DeleteIcon(editor, true);
        default:
            return;
    }
}

}  // namespace orbelle::editing
