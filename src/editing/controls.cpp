#include "editing/controls.h"

namespace orbelle::editing {

Controls::Controls() {
    for (const int button : {main_buttons::Save, main_buttons::Undo, main_buttons::Redo,
                             main_buttons::ZoomIn, main_buttons::ZoomOut})
        MainBar[static_cast<std::size_t>(button)].Enabled = false;
    for (Button& button : LayerBar)
        button.Enabled = false;
    for (Button& button : ToolBox)
        button.Enabled = false;
    ToolBox[tool_buttons::Move] = {true, true};
    FillBar[1].Pressed = true;
    SelectionBar[selection_buttons::Rectangle].Pressed = true;
    EraserBar[eraser_buttons::Pencil].Pressed = true;
}

}  // namespace orbelle::editing
