// The foreground and background colours, in wells 0 and 1, and the opacity of the one in use.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A click: the well is in use.
void UseColorWell(Editor& editor, int well);

// What the colour dialog begins with for a well's colour: that, in the opacity of whole percents
// that the slider shows for it, or opaque where that is 0.
graphics::Argb ColorToChoose(graphics::Argb present);

// A colour with its alpha from the colour dialog. The well is in use.
void ChooseWellColor(Editor& editor, int well, graphics::Argb color);

// Puts a colour with its alpha into a well.
void SetWellColor(Editor& editor, int well, graphics::Argb color);

// The colour opacity slider: 2.55 of alpha for each step, ties to even, for the colour in use.
void ChangeColorOpacity(Editor& editor, int value);

// The wells change colours; the same well stays in use.
void ExchangeColor(Editor& editor);

// The colour in use becomes that of the page, as composed and without its background, under a scene
// point; transparent beside the page. Nothing happens outside the scene.
void PickColor(Editor& editor, float x, float y);

// The colour opacity slider shows the alpha of the colour in use.
void ShowColorOpacity(Editor& editor);

}  // namespace orbelle::editing
