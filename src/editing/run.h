// The one way in: every command is carried out by Run.
#pragma once

#include <exception>
#include <functional>
#include <string>

#include "editing/editor.h"

namespace orbelle::editing {

// How a command ended.
class [[nodiscard]] Outcome {
public:
    Outcome() = default;  // it went well
    explicit Outcome(std::exception_ptr failure) : failure_(std::move(failure)) {}

    bool Failed() const { return failure_ != nullptr; }
    // Why it failed, in words for the user; empty when it went well.
    std::string Problem() const;

private:
    std::exception_ptr failure_;
};

using Command = std::function<void(Editor&)>;

// Gives up a drag in progress, carries the command out, composes and paints what it has noted in
// Editor::Changed, works out the states of the controls and tells the observer, once. A command
// that throws leaves document and history as they were.
Outcome Run(Editor& editor, const Command& command);

// The same for what belongs to a drag or may come while one is in progress: moves, releases, steps
// of a slider, zooming and scrolling. A step that throws gives the drag up.
Outcome RunDuringDrag(Editor& editor, const Command& step);

}  // namespace orbelle::editing
