// What the keys do to the selected layer, the same with every tool.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

namespace key_codes {
enum { Left = 37, Up = 38, Right = 39, Down = 40, Delete = 46 };
}

// An arrow moves the layer by one page pixel, an undo step for each press; Delete removes it.
// Deliberately any key marks the document as changed. Throws document::HistoryLimit.
void HandleObjectKey(Editor& editor, int keyCode);

}  // namespace orbelle::editing
