// Giving up what is going on between two commands.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Takes back what the drag in progress has done since its last undo step. Nothing without a drag.
void GiveUpDrag(Editor& editor);

// The drag in progress never was: the step that its press took goes with it, and what could have
// been redone can be again. Only a selection that the press of the Move tool has lifted off stays
// lifted: its steps were done then. Nothing without a drag.
void CancelDrag(Editor& editor);

// Escape on the scene, as a step of the drag in which it may come: cancels that, or else gives up
// an open polygon. False: there was neither.
bool CancelInput(Editor& editor);

}  // namespace orbelle::editing
