#include "editing/run.h"

#include <new>
#include <utility>

#include "document/scene_painter.h"
#include "editing/tools/polygon.h"

namespace orbelle::editing {
namespace {

template <typename Work>
Outcome Attempt(Work&& work) {
    try {
        work();
    } catch (const std::exception&) {
        return Outcome(std::current_exception());
    }
    return {};
}

// Takes back what the drag in progress has done since its last undo step.
void GiveUpDrag(Editor& editor) {
    if (std::holds_alternative<std::monostate>(editor.Drag))
        return;
    if (const auto* move = std::get_if<MoveDrag>(&editor.Drag)) {
        editor.Page().Selected().Rect = move->Before;
        editor.Changed.Pixels = true;
    } else if (const auto* stroke = std::get_if<StrokeDrag>(&editor.Drag)) {
        editor.Page().Selected().Image = stroke->Before;
        editor.Changed.Pixels = true;
    } else if (std::holds_alternative<FrameSelectionDrag>(editor.Drag)) {
        editor.Overlays.SelectionFrame = {};
    }
    editor.Drag = {};
}

void PaintScene(Editor& editor) {
    // While a polygon is open its outline is shown in place of the selection.
    const bool polygonOpen = !editor.PolygonPoints.empty();
    document::DrawScene(editor.Scene, editor.Canvas, editor.Document.Background, editor.View,
                        polygonOpen ? document::Selection() : editor.Selection);
    if (polygonOpen)
        DrawOpenPolygon(editor);
}

void Show(Editor& editor) {
    if (editor.Changed.Pixels)
        editor.Compositor.Compose(editor.Page(), graphics::InterpolationMode::NearestNeighbor,
                                  editor.Canvas);
    if (editor.Changed.Pixels || editor.Changed.Scene)
        PaintScene(editor);
}

// What the observer is told of is found by comparing, so that no command can forget it.
void NoteControls(Editor& editor, const EditorState& before) {
    EnableSliders(editor);
    const ControlStates states = StatesOf(editor, editor.Clipboard.HasPicture());
    Changes& changed = editor.Changed;
    changed.Controls |= states != editor.States || editor.Sliders != before.Sliders ||
                        editor.Tools != before.Tools ||
                        editor.DocumentExists != before.DocumentExists ||
                        editor.Document.Background != before.Document.Background;
    changed.Overlays |= editor.Overlays != before.Overlays;
    editor.States = states;
}

Outcome Execute(Editor& editor, const Command& command, const EditorState& before) {
    const document::UndoHistory::Place place = editor.History.Here();
    const Outcome outcome = Attempt([&] {
        command(editor);
        Show(editor);
    });
    bool shown = true;
    if (outcome.Failed()) {
        static_cast<EditorState&>(editor) = before;
        editor.History.RollBack(place);
        editor.Changed = {};
        editor.Changed.Pixels = editor.Changed.Stack = editor.Changed.Controls = true;
        GiveUpDrag(editor);
        shown = !Attempt([&] { Show(editor); }).Failed();
    }
    editor.History.Settle();
    NoteControls(editor, before);
    editor.Observer.Changed(std::exchange(editor.Changed, {}));
    // Where memory does not suffice even for that, the next command paints it.
    editor.Changed.Pixels = !shown;
    return outcome;
}

Outcome Execute(Editor& editor, const Command& command) {
    try {
        const EditorState before = editor;
        return Execute(editor, command, before);
    } catch (const std::bad_alloc&) {
        // There is no memory for the copy: nothing has begun.
        return Outcome(std::current_exception());
    }
}

}  // namespace

std::string Outcome::Problem() const {
    try {
        if (failure_)
            std::rethrow_exception(failure_);
    } catch (const std::bad_alloc&) {
        return "There is not enough memory.";
    } catch (const std::exception& failure) {
        return failure.what();
    }
    return {};
}

Outcome Run(Editor& editor, const Command& command) {
    GiveUpDrag(editor);
    return Execute(editor, command);
}

Outcome RunDuringDrag(Editor& editor, const Command& step) {
    return Execute(editor, step);
}

}  // namespace orbelle::editing
