#include "editing/controls.h"

namespace orbelle::editing {

Controls::Controls() {
    for (const int button : {main_buttons::Save, main_buttons::Undo, main_buttons::Redo,
                             main_buttons::ZoomIn, main_buttons::ZoomOut})
        ToolBarvs1[static_cast<std::size_t>(button)].Enabled = false;
    for (Button& button : ToolBarvs4)
        button.Enabled = false;
    for (Button& button : ToolBarvs2)
        button.Enabled = false;
    ToolBarvs2[tool_buttons::Move] = {true, true};
    ToolBarvs3[1].Pressed = true;
    ToolBarvs5[selection_buttons::Rectangle].Pressed = true;
    ToolBarvs6[eraser_buttons::Pencil].Pressed = true;
}

}  // namespace orbelle::editing
