// The menu bar of the main window.
#pragma once

#include <vector>

#include "editing/controls.h"

class QAction;

namespace orbelle::app {

class mForm;

// Every entry carries its name as object name. Entries without a command are disabled, and so are
// submenus without an entry that has one.
class MainMenu {
public:
    // Fills the window's menu bar.
    explicit MainMenu(mForm& form);

    void ShowStates(const editing::Controls& controls);

private:
    struct State {
        QAction* Action;
        editing::MenuEntry editing::Controls::*Entry;
    };
    std::vector<State> states_;
};

}  // namespace orbelle::app
