// Where a selection begins.
#pragma once

#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

// The place of a press, brought onto the page as it lies on the scene, scene pixels.
graphics::PointF StartOnPage(const Editor& editor, const Pointer& pointer);

}  // namespace orbelle::editing
