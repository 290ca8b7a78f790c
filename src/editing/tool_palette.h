// What the buttons of the tool column, its pop-ups and the brush panel do.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A click on a button of ToolBox (see tool_buttons): the tool, and which options it has. Every
// tool but Move and the selections ends the selection.
void ClickToolButton(Editor& editor, int button);

// Buttons of the pop-ups FillBar, SelectionBar and EraserBar; the pop-up closes.
void ChooseFill(Editor& editor, FillKind kind);
void ChooseSelection(Editor& editor, int button);
void ChooseEraser(Editor& editor, int button);

// The entries of the Tool menu, which leave the tool column as it is. `tool`: Move, Pencil, Line,
// Ellipse or Rectangle.
void ChooseToolEntry(Editor& editor, Tool tool);

// Sliders of the tools' options.
void ChangeLineWidth(Editor& editor, int value);     // 1 to 255 pixels
void ChangeBrushSize(Editor& editor, int value);     // 1 to 100
void ChangeBrushOpacity(Editor& editor, int value);  // 1 to 100

}  // namespace orbelle::editing
