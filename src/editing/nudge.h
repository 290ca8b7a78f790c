// Moving the selected layer by less than a pixel.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

enum class Direction { Left, Right, Up, Down };

// The selected layer half a page pixel further, an undo step. Its picture is drawn anew as it looks
// there (filters::HalfStepAcross), one pixel wider or higher, and so is the layer. Throws Error
// when that is too large for a picture. A layer without a picture stays as it is.
void NudgeHalf(Editor& editor, Direction direction);

}  // namespace orbelle::editing
