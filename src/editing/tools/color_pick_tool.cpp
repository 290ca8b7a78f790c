// Takes the colour under the pointer.
#include "editing/color_wells.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {
namespace {

// Begins no drag.
void Press(Editor& editor, const Pointer& pointer) {
    PickColor(editor, pointer.X, pointer.Y);
}

void Move(Editor&, Pointer&) {}

AfterRelease Release(Editor&, const Pointer&) {
    return AfterRelease::Compose;
}

}  // namespace

const ToolHandlers kColorPickTool = {Press, Move, Release};

}  // namespace orbelle::editing
