// Commands on the stack and on the selection of a layer.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// An undo step and a new transparent layer above the selected one; Rect takes the given size in
// page pixels, the picture that of the page. Throws document::HistoryLimit.
void AddEmptyLayer(Editor& editor, float width, float height);

// The same without the undo step: the first layer of a new document.
void InsertEmptyLayer(Editor& editor, float width, float height);

// Button 1 of LayerBar: an empty layer of the page's size.
void AddLayerCommand(Editor& editor);

// A click on the row of layer `index` in the layer list (0 is the bottom).
void SelectLayer(Editor& editor, int index);

// Sets the adjustment sliders and the labels beside them; all labels but the hue's deliberately
// read "0" whatever the sliders hold.
void SetAdjustSliders(Editor& editor, int hue, int brightness, int saturation, int contrast);

// The same from a layer's record.
void ShowLayerAdjust(Editor& editor, int index);

// Opacity slider, scale slider and label from the selected layer.
void ShowLayerSliders(Editor& editor);

// The six sliders are enabled exactly when a layer is selected.
void EnableLayerSliders(Editor& editor);

// The states of LayerBar's buttons for the selected layer.
void UpdateLayerButtons(Editor& editor);

// All of these. With no layer selected the sliders keep their places, disabled.
void ShowSelectedLayer(Editor& editor);

}  // namespace orbelle::editing
