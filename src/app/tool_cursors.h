// The pointers of the tools on the scene.
#pragma once

#include <QCursor>

#include "editing/tool.h"

namespace orbelle::app {

// Drawn for the finest of the screens. Once there is an application object.
const QCursor& CursorOf(editing::Tool tool);

}  // namespace orbelle::app
