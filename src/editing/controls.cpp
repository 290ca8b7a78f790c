#include "editing/controls.h"

namespace orbelle::editing {

Controls::Controls() {
    for (const int button : {main_buttons::Save, main_buttons::Undo, main_buttons::Redo,
                             main_buttons::ZoomIn, main_buttons::ZoomOut})
        ToolBarvs1[static_cast<std::size_t>(button)].Enabled = false;
    for (Button& button : ToolBarvs4)
        button.Enabled = false;
}

}  // namespace orbelle::editing
