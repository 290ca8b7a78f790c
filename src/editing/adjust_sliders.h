// The sliders of the layer panels. A drag is a press, any number of changes and a release, and one
// undo step, taken at the press. Values are slider positions; others are brought to the nearer end.
// Nothing happens without a selected layer, nor between a drag that was given up, or refused for
// want of room in the history, and the next press.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

void PressOpacity(Editor& editor);
void ChangeOpacity(Editor& editor, int value);
void ReleaseOpacity(Editor& editor);

enum class Adjustment { Hue, Saturation, Brightness, Contrast };

// Every change filters the picture as it was at the press, so steps of one drag do not add up; the
// next drag starts from the changed pixels, so drags do.
void PressAdjustment(Editor& editor, Adjustment adjustment);
void ChangeAdjustment(Editor& editor, Adjustment adjustment, int value);
void ReleaseAdjustment(Editor& editor, Adjustment adjustment);

// The drag changes only the layer's Rect; the release draws the picture in the new size and puts
// the slider back to its middle.
void PressScale(Editor& editor);
void ChangeScale(Editor& editor, int value);
void ReleaseScale(Editor& editor);

}  // namespace orbelle::editing
