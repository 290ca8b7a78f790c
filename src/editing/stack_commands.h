// Commands that change the order of the layers, or one layer as a whole. Each does nothing without
// a selected layer and is one undo step unless said otherwise.
#pragma once

#include <string>

#include "editing/editor.h"
#include "editing/step_names.h"

namespace orbelle::editing {

enum class LayerOrder { ToFront = 0, ToBack = 1, BackOne = 2, ForwardOne = 3 };

// Nothing at all happens in a stack of one layer. A step that the layer's place does not allow is
// an undo step all the same.
void SetLayerOrder(Editor& editor, LayerOrder order);

// Whether a hand may take the layer to another place: by the rule of Set Order, a hidden layer and
// a plate that clips the one above it stay.
bool CanMoveLayer(const document::Page& page, int layer);
// Selects the layer and takes it to the place `to`, both counted from the bottom; what lies between
// moves up. No step, and nothing but the selection changes, where it lies there already; nothing
// at all happens when it can't be moved or there is no such place.
void MoveLayerTo(Editor& editor, int layer, int to);

// The name under which the list has it: its own, or "Icon 3" for the third from the bottom.
std::string NameOfLayer(const document::Page& page, int layer);
// The clean name (document::CleanLayerName); without one the layer goes by its place again. No step
// where the name stays.
void RenameLayer(Editor& editor, int layer, const std::string& name);

enum class FlipRotate { FlipHorizontal = 0, FlipVertical = 1, Rotate90Cww = 2, Rotate90Cw = 3 };

// A picture or place that is not square turns around the middle of Rect, whose corner is rounded
// down to whole page pixels. Rotate90Cww mirrors too (docs/oddities.md, "Quarter turns").
void FlipRotateLayer(Editor& editor, FlipRotate mode);

// Removes the selected layer and selects the one below it (the lowest when there is none).
void DeleteLayer(Editor& editor);
// The same as a step of another name.
void RemoveLayer(Editor& editor, steps::Name step);

// The selected layer and the one below it become one, of the lower one's name unless only the upper
// one has any; a plate cuts it a last time. Needs a layer
// below. Two undo steps (docs/oddities.md, "Two undo steps"). Throws Error for layers too far apart
// for one picture.
void MergeDown(Editor& editor);

}  // namespace orbelle::editing
