// What the buttons of the tool box, its pop-ups and the brush panel do.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A click on a button of the tool box (buttons.h): the tool, and its pop-up. Every tool but Move
// and the selections ends the selection. Nothing happens while the button is disabled.
void ClickToolButton(Editor& editor, int button);

// The same by a key: the pop-up is the mouse's and stays closed.
void ChooseToolByKey(Editor& editor, int button);

// Leaves a pop-up with nothing chosen.
void CloseToolPopup(Editor& editor);

// Buttons of the pop-ups; the pop-up closes.
void ChooseFill(Editor& editor, FillKind kind);
void ChooseSelection(Editor& editor, Tool tool);  // one of the three selections
void ChooseEraser(Editor& editor, Tool tool);     // one of the two erasers

// The entries of the Tool menu: Move, Pencil, Line, Ellipse or Rectangle. The selection stays.
void ChooseToolEntry(Editor& editor, Tool tool);

// Mirror drawing; the toggles are those of the Tool menu.
void SetMirror(Editor& editor, MirrorAxes axes);
void ToggleMirrorLeftRight(Editor& editor);
void ToggleMirrorTopBottom(Editor& editor);

// Sliders of the tools' options; the value is brought into the slider's range.
void ChangeLineWidth(Editor& editor, int value);
void ChangeBrushSize(Editor& editor, int value);
void ChangeBrushOpacity(Editor& editor, int value);

}  // namespace orbelle::editing
