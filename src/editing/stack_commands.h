// Commands that change the order of the layers, or one layer as a whole. Each does nothing without
// a selected layer and is one undo step unless said otherwise.
#pragma once

#include "editing/editor.h"
#include "editing/step_names.h"

namespace orbelle::editing {

enum class LayerOrder { ToFront = 0, ToBack = 1, BackOne = 2, ForwardOne = 3 };

// Nothing at all happens in a stack of one layer. A step that the layer's place does not allow is
// an undo step all the same.
void SetLayerOrder(Editor& editor, LayerOrder order);

enum class FlipRotate { FlipHorizontal = 0, FlipVertical = 1, Rotate90Cww = 2, Rotate90Cw = 3 };

// A picture or place that is not square turns around the middle of Rect, whose corner is rounded
// down to whole page pixels. Rotate90Cww mirrors too (docs/oddities.md, "Quarter turns").
void FlipRotateLayer(Editor& editor, FlipRotate mode);

// Removes the selected layer and selects the one below it (the lowest when there is none).
void DeleteLayer(Editor& editor);
// The same as a step of another name.
void RemoveLayer(Editor& editor, steps::Name step);

// The selected layer and the one below it become one; a plate cuts it a last time. Needs a layer
// below. Two undo steps (docs/oddities.md, "Two undo steps"). Throws Error for layers too far apart
// for one picture.
void MergeDown(Editor& editor);

}  // namespace orbelle::editing
