// Page size and page background. None of these is an undo step or marks the document as changed
// (docs/oddities.md, "Without undo").
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// The page-size sliders; the value is brought into the slider's range. Layers keep their place.
void ChangePageWidth(Editor& editor, int value);
void ChangePageHeight(Editor& editor, int value);

// 0: transparent.
void SetPageBackground(Editor& editor, graphics::Argb color);

}  // namespace orbelle::editing
