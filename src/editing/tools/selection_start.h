// Where a selection begins.
#pragma once

#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

// Sets MouseDownX, MouseDownY to the press, brought onto the page as it lies on the scene.
void MoveStartOntoPage(Editor& editor, const Pointer& pointer);

}  // namespace orbelle::editing
