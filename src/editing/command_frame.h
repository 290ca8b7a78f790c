// What every command is run in.
#pragma once

#include <exception>
#include <new>

#include "editing/editor.h"

namespace orbelle::editing {

// Runs a command to its end under the busy pointer. What it throws becomes a message box; the host
// mirrors the controls afterwards in any case.
template <typename Command>
void RunCommand(Editor& editor, Command&& command) {
    editor.Host.SetBusyPointer(true);
    std::string failure;
    try {
        command();
    } catch (const std::bad_alloc&) {
        failure = "There is not enough memory.";
    } catch (const std::exception& error) {
        failure = error.what();
    }
    editor.Host.SetBusyPointer(false);
    editor.Host.ControlsChanged();
    if (!failure.empty())
        editor.Host.ShowMessage(failure);
}

}  // namespace orbelle::editing
