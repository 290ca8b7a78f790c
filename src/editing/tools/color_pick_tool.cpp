// Takes the colour under the pointer.
#include "editing/color_wells.h"
#include "editing/tools/object_keys.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {
namespace {

void Press(Editor& editor, const Pointer& pointer) {
    PickColor(editor, pointer.X, pointer.Y);
}

// The press begins no drag.
void Move(Editor&, Pointer&) {}
AfterRelease Release(Editor&, const Pointer&) {
    return AfterRelease::Compose;
}
void Abandon(Editor&) {}

}  // namespace

const ToolHandlers kColorPickTool = {Press, Move, Release, Abandon, HandleObjectKey};

}  // namespace orbelle::editing
