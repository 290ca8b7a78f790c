// The menu bar of the main window.
#pragma once

#include <functional>
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
    // That of View/Pixel Grid.
    void ShowPixelGridState(bool shown);
    void ShowCheckState(bool shown);

    // The pop-up of a layer's order, with entries of the Edit menu.
    QMenu& OrderMenu() const { return *orderMenu_; }

private:
    struct State {
        QAction* Action;
        editing::CommandId Command;
    };
    struct Mark {
        QAction* Action;
        std::function<bool(const editing::ToolSettings&)> IsOn;
    };
    std::vector<State> states_;
    std::vector<Mark> marks_;
    QAction* tips_ = nullptr;
    QAction* pixelGrid_ = nullptr;
    QAction* check_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QMenu* orderMenu_ = nullptr;
};

}  // namespace orbelle::app
