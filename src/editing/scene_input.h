// The user's hands on the scene: the order of steps of every press, move, release and key. What a
// tool does with them stands in tools/.
#pragma once

#include "editing/editor.h"
#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

// None of these shows a message but when memory or the history is full; the drag is then given up.
void PressScene(Editor& editor, const Pointer& pointer);
void MoveScene(Editor& editor, const Pointer& pointer);
// Any button ends a drag.
void ReleaseScene(Editor& editor, const Pointer& pointer);
// `keyCode` as in tools/object_keys.h.
void KeyDownScene(Editor& editor, int keyCode);

// Gives up a drag in progress and an open polygon.
void CancelInput(Editor& editor);

// The age that a press gives to open tips: they close at their next tick.
inline constexpr int kTipsExpired = 500;

}  // namespace orbelle::editing
