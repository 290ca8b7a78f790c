// How the parts of the window have the editor do something.
#pragma once

#include <string>

#include "editing/run.h"

namespace orbelle::app {

// How a command ended, for a caller that tells it himself.
struct Report {
    bool Failed = false;
    // Why it failed, or what one that went well has to say; empty: nothing.
    std::string Text;
};

class CommandRunner {
public:
    // Carries a command out; a failure becomes a message box. True: it went well.
    virtual bool Run(const editing::Command& command) = 0;
    // The same under the busy pointer, for what may take a moment: files and styles.
    virtual bool RunBusy(const editing::Command& command) = 0;
    // The same as that, but what there is to tell is left to the caller.
    virtual Report Try(const editing::Command& command) = 0;
    // For what belongs to a drag or may come while one is in progress.
    virtual bool RunDuringDrag(const editing::Command& step) = 0;

    virtual const editing::Editor& Editor() const = 0;

protected:
    ~CommandRunner() = default;
};

}  // namespace orbelle::app
