// The menu bar of the main window.
#pragma once

#include <vector>

#include "app/window_actions.h"

class QAction;
class QMainWindow;
class QMenu;

namespace orbelle::app {

// Every entry carries its name as object name. Entries without a command are disabled, and so are
// submenus without an entry that has one.
class MainMenu {
public:
    // Fills the window's menu bar.
    MainMenu(QMainWindow& window, const WindowContext& context);

    void ShowStates(const editing::Editor& editor);
    // The check mark of Help/Tips.
    void ShowTipsState(bool enabled);

    // The pop-up of a layer's order, with entries of the Edit menu.
    QMenu& OrderMenu() const { return *orderMenu_; }

private:
    struct State {
        QAction* Action;
        editing::CommandId Command;
    };
    struct ToolMark {
        QAction* Action;
        editing::Tool Tool;
    };
    std::vector<State> states_;
    std::vector<ToolMark> toolMarks_;
    QAction* tips_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QMenu* orderMenu_ = nullptr;
};

}  // namespace orbelle::app
