// The open polygon of a selection.
#pragma once

#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

// The line from the last point to the pointer; nothing without an open polygon.
void StretchRubberBand(Editor& editor, const Pointer& pointer);

// Adds the polygon to the selection, when there is one, and paints the scene.
void ClosePolygon(Editor& editor);

// Forgets the polygon.
void DropPolygon(Editor& editor);

// The outline drawn so far, on Editor::Scene.
void DrawOpenPolygon(Editor& editor);

}  // namespace orbelle::editing
