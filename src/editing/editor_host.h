// What the editor asks of the program around it: the window, the command line, a test.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "formats/icon_reader.h"

namespace orbelle::editing {

enum class SavePromptAnswer { Cancel = 0, No = 1, Yes = 2 };

struct PageSize {
    int Width = 0;  // page pixels
    int Height = 0;
};

class EditorHost {
public:
    virtual ~EditorHost() = default;

    // Notices. A host that does not show the thing has nothing to do.
    virtual void SceneChanged() {}         // Editor::Scene was painted anew
    virtual void LayerPanelChanged() {}    // the stack or a thumbnail changed
    virtual void ControlsChanged() {}      // Editor::Controls changed
    virtual void TitleChanged() {}         // Editor::Title changed
    virtual void ShowTips(int /*tip*/) {}  // a tip fits now, by its number
    virtual void SetBusyPointer(bool /*busy*/) {}
    // Editor::Zoom is to be stepped by TickZoomAnimation until that says that it is done.
    virtual void StartZoomAnimation() {}

    // A plain message box with one button.
    virtual void ShowMessage(const std::string& text) = 0;
    // A failure told in the status line, without a box.
    virtual void ShowStatus(const std::string& text) = 0;

    // "Save Icon Document?": before a changed document is given up.
    virtual SavePromptAnswer AskSave() = 0;
    // The New dialog. No value: cancelled. The host remembers the last size.
    virtual std::optional<PageSize> AskPageSize() = 0;
    // A file dialog with a filter of "text|patterns|text|patterns..."; empty: cancelled.
    virtual std::filesystem::path ShowFileDialog(const std::string& filter, bool isOpen) = 0;
    // Which image of an icon file to take, as its place among those offered; -1: OK without one,
    // as when none is offered. No value: cancelled.
    virtual std::optional<int> ChooseIconEntry(
        const std::vector<formats::IconEntryImage>& offered) = 0;
    // A question with OK and Cancel, Cancel the default; true: OK.
    virtual bool Confirm(const std::string& text, const std::string& title) = 0;
};

}  // namespace orbelle::editing
