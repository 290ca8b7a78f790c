// Making layers, and choosing one.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A new transparent layer above the selected one, selected; Rect takes the given size in page
// pixels, the picture that of the page. Throws Error when the stack takes no further layer
// (document::OpenLayerSlot), as all that makes a layer does.
void InsertEmptyLayer(Editor& editor, float width, float height);

// The same with an undo step before it.
void AddEmptyLayer(Editor& editor, float width, float height);

// A click on the row of layer `index` in the layer list (0 is the bottom). Nothing happens when
// there is no such layer.
void SelectLayer(Editor& editor, int index);

}  // namespace orbelle::editing
