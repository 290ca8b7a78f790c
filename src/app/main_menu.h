// The menu bar of the main window.
#pragma once

#include <vector>

#include "editing/controls.h"

class QAction;
class QMenu;

namespace orbelle::app {

class MainWindow;

// Every entry carries its name as object name. Entries without a command are disabled, and so are
// submenus without an entry that has one.
class MainMenu {
public:
    // Fills the window's menu bar.
    explicit MainMenu(MainWindow& form);

    void ShowStates(const editing::Controls& controls);
    // The check mark of Help/Tips.
    void ShowTipsState(bool enabled);

    // The pop-up of a layer's order, with entries of the Edit menu.
    QMenu& OrderMenu() const { return *orderMenu_; }

private:
    struct State {
        QAction* Action;
        editing::MenuEntry editing::Controls::*Entry;
    };
    std::vector<State> states_;
    QAction* tips_ = nullptr;
    QMenu* orderMenu_ = nullptr;
};

}  // namespace orbelle::app
