// What becomes of a drag on the scene when something else comes between.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Takes back what the drag in progress has done since its last undo step. Commands run only
// between drags, so each calls this first.
void AbandonDrag(Editor& editor);

}  // namespace orbelle::editing
