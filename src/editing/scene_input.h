// The user's hands on the scene: the order of steps of every press, move, release and key. What a
// tool does with them stands in tools/.
#pragma once

#include "editing/editor.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

void PressScene(Editor& editor, const Pointer& pointer);
// These two belong to a drag.
void MoveScene(Editor& editor, const Pointer& pointer);
void ReleaseScene(Editor& editor, const Pointer& pointer);  // any button ends a drag

// Shift went down or up, alone, while a shape is drawn: its preview follows at once.
void HoldShift(Editor& editor, bool isHeld);

// The pointer is no longer over the scene.
void LeaveScene(Editor& editor);

enum class SceneKey { Left, Up, Right, Down, Delete };

// An arrow moves the selected layer by one page pixel, an undo step for each press; Delete does
// what the Edit menu's entry does, and nothing where that is disabled.
void KeyDownScene(Editor& editor, SceneKey key);

}  // namespace orbelle::editing
