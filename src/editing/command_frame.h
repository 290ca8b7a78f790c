// What every command is run in.
#pragma once

#include <exception>
#include <new>
#include <string>

#include "editing/drag.h"
#include "editing/editor.h"

namespace orbelle::editing {

// Runs the work; what it throws, in words for the user, or nothing.
template <typename Work>
std::string Guarded(Work&& work) {
    try {
        work();
    } catch (const std::bad_alloc&) {
        return "There is not enough memory.";
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

// Runs a command to its end under the busy pointer; a drag in progress is given up. What it throws
// becomes a message box; the host mirrors the controls afterwards in any case.
template <typename Command>
void RunCommand(Editor& editor, Command&& command) {
    editor.Host.SetBusyPointer(true);
    const std::string failure = Guarded([&] {
        AbandonDrag(editor);
        command();
    });
    editor.Host.SetBusyPointer(false);
    editor.Host.ControlsChanged();
    if (!failure.empty())
        editor.Host.ShowMessage(failure);
}

}  // namespace orbelle::editing
