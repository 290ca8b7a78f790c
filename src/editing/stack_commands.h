// Commands that change the order of the layers, or one layer as a whole. Each does nothing without
// a selected layer and is one undo step unless said otherwise.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

enum class LayerOrder { ToFront = 0, ToBack = 1, BackOne = 2, FowardOne = 3 };

// Nothing at all happens in a stack of one layer. A step that the layer's place does not allow is
// an undo step all the same.
void SetLayerOrder(Editor& editor, LayerOrder order);

enum class FlipRotate { FlipH = 0, FlipV = 1, Rotate90CWW = 2, Rotate90CW = 3 };

// Rotate90CWW deliberately mirrors too. A rotation deliberately leaves Rect, ImageWidth and
// ImageHeight as they are.
void FlipRotateLayer(Editor& editor, FlipRotate mode);

// Removes the selected layer and selects the one below it (the lowest when there is none).
// `redraw`: composes and refreshes the panel.
void DeleteIcon(Editor& editor, bool redraw);

// Merge Down: the selected layer and the one below it become one. Needs a layer below. Deliberately
// two undo steps.
void CombineIcon(Editor& editor);

// The Edit menu's Delete: the selection if there is one, else the selected layer.
void DeleteCommand(Editor& editor);

// Buttons 2, 3 and 6 of LayerBar; each first ends the selection. Hide Layer is no undo step.
void RemoveLayerCommand(Editor& editor);
void HideLayerCommand(Editor& editor);
void MergeDownCommand(Editor& editor);

}  // namespace orbelle::editing
