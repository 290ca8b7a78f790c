// What menus and bars ask of the main window that is no business of the editor.
#pragma once

#include "app/command_runner.h"
#include "app/user_questions.h"

namespace orbelle::app {

class RecentFiles;

class WindowActions {
public:
    virtual void CloseWindow() = 0;
    virtual void FocusScene() = 0;
    // "Back One", "Foward One", "To Back", "To Front" at the Set Order button.
    virtual void ShowOrderMenu() = 0;
    // Edit/Paste: the clipboard's picture, or the files that lie there, imported.
    virtual void Paste() = 0;
    virtual void ToggleTips() = 0;  // Help/Tips
    virtual void CloseTips() = 0;
    virtual void TogglePixelGrid() = 0;  // View/Pixel Grid
    virtual void ToggleCheck() = 0;      // Tool/Check Icon
    virtual void ShowAbout() = 0;
    // The controls show the editor's states again, whatever the toolkit did to them.
    virtual void ShowControls() = 0;

protected:
    ~WindowActions() = default;
};

// All that a part of the window needs to know of it.
struct WindowContext {
    CommandRunner& Commands;
    UserQuestions& User;
    WindowActions& Window;
    RecentFiles& Recent;
};

}  // namespace orbelle::app
