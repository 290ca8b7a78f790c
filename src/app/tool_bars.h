// The six toolbars of the main window, and what their buttons run.
#pragma once

#include "editing/controls.h"
#include "widgets/tool_bar.h"

namespace orbelle::app {

class mForm;

// The bars belong to the window; the three pop-ups lie on its central widget.
class ToolBars {
public:
    explicit ToolBars(mForm& form);

    // Enabled and pressed states, and which pop-ups are open.
    void ShowStates(const editing::Controls& controls);

    widgets::ToolBarvs* const ToolBarvs1;  // main
    widgets::ToolBarvs* const ToolBarvs2;  // tools
    widgets::ToolBarvs* const ToolBarvs3;  // fill kinds
    widgets::ToolBarvs* const ToolBarvs4;  // layers
    widgets::ToolBarvs* const ToolBarvs5;  // selection kinds
    widgets::ToolBarvs* const ToolBarvs6;  // erasers

private:
    void ShowPopup(widgets::ToolBarvs& popup, bool visible, int button);
};

}  // namespace orbelle::app
