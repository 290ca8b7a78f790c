// The Style menu.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A white gloss on a layer of its own above the selected one.
void Crystal(Editor& editor);

}  // namespace orbelle::editing
