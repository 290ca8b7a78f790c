// The six toolbars of the main window, and what their buttons run.
#pragma once

#include "editing/controls.h"
#include "widgets/button_bar.h"

namespace orbelle::app {

class MainWindow;

// The bars belong to the window; the three pop-ups lie on its central widget.
class ButtonBars {
public:
    explicit ButtonBars(MainWindow& form);

    // Enabled and pressed states, and which pop-ups are open.
    void ShowStates(const editing::Controls& controls);

    widgets::ButtonBar* const MainBar;       // main
    widgets::ButtonBar* const ToolBox;       // tools
    widgets::ButtonBar* const FillBar;       // fill kinds
    widgets::ButtonBar* const LayerBar;      // layers
    widgets::ButtonBar* const SelectionBar;  // selection kinds
    widgets::ButtonBar* const EraserBar;     // erasers

private:
    void ShowPopup(widgets::ButtonBar& popup, bool visible, int button);
};

}  // namespace orbelle::app
