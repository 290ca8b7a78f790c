#include "editing/run.h"

#include <new>
#include <type_traits>
#include <utility>

#include "document/scene_painter.h"
#include "editing/give_up.h"
#include "editing/tools/polygon.h"
#include "formats/document_limits.h"

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

void PaintScene(Editor& editor) {
    // While a polygon is open its outline is shown in place of the selection.
    const bool polygonOpen = !editor.PolygonPoints.empty();
    document::DrawScene(editor.Scene, editor.Canvas, editor.Document.Background, editor.View,
                        polygonOpen ? document::Selection() : editor.Selection, editor.Looks);
    if (polygonOpen)
        DrawOpenPolygon(editor);
}

void ComposeAndPaint(Editor& editor) {
    editor.Compositor.Compose(editor.Page(), graphics::InterpolationMode::NearestNeighbor,
                              editor.Canvas);
    PaintScene(editor);
}

void Show(Editor& editor) {
    if (editor.Changed.Pixels)
        ComposeAndPaint(editor);
    else if (editor.Changed.Scene)
        PaintScene(editor);
}

// What the window shows beside the page and the layers.
struct ShownControls {
    explicit ShownControls(const Editor& editor)
        : Sliders(editor.Sliders),
          Tools(editor.Tools),
          DocumentExists(editor.DocumentExists),
          Background(editor.Document.Background) {}
    bool operator==(const ShownControls&) const = default;

    editing::Sliders Sliders;
    ToolSettings Tools;
    bool DocumentExists;
    graphics::Argb Background;
};

// What the observer is told of is found by comparing, so that no command can forget it.
void NoteControls(Editor& editor, const ShownControls& before, const Overlays& overlaysBefore) {
    EnableSliders(editor);
    const ControlStates states = StatesOf(editor, editor.History, editor.Clipboard.HasPicture());
    editor.Changed.Controls |= states != editor.States || ShownControls(editor) != before;
    editor.Changed.Overlays |= editor.Overlays != overlaysBefore;
    editor.States = states;
}

bool CanBeOpened(const document::Document& document) {
    return !Attempt([&] { formats::RequireCanBeOpened(document); }).Failed();
}

// What could not be opened again must not come about; a document that is so already may be changed.
void RequireCanStillBeOpened(const document::Document& before, const document::Document& after) {
    if (!CanBeOpened(after) && CanBeOpened(before))
        formats::RequireCanBeOpened(after);
}

Outcome Execute(Editor& editor, const Command& command) {
    EditorState before;
    bool hasBegun = false;
    const document::UndoHistory::Place place = editor.History.Here();
    const ShownControls controls(editor);
    const Overlays overlays = editor.Overlays;
    // A drag was given up, or there was no memory to paint in.
    const bool unpainted = std::exchange(editor.Changed.Pixels, false);
    Outcome outcome = Attempt([&] {
        before = editor;
        hasBegun = true;
        // The command may read the canvas.
        if (unpainted)
            ComposeAndPaint(editor);
        command(editor);
        RequireCanStillBeOpened(before.Document, editor.Document);
        Show(editor);
    });
    bool shown = true;
    if (outcome.Failed()) {
        // There may be no memory left to go back with.
        static_assert(std::is_nothrow_move_assignable_v<EditorState>);
        if (hasBegun)
            static_cast<EditorState&>(editor) = std::move(before);
        editor.History.RollBack(place);
        editor.Changed = {};
        editor.Changed.Pixels = editor.Changed.Stack = editor.Changed.Controls = true;
        GiveUpDrag(editor);
        shown = !Attempt([&] { Show(editor); }).Failed();
    }
    editor.History.Settle(std::holds_alternative<std::monostate>(editor.Drag));
    NoteControls(editor, controls, overlays);
    editor.Changed.Pixels |= unpainted;
    editor.Observer.Changed(std::exchange(editor.Changed, {}));
    // Where memory does not suffice even for that, the next command paints it.
    editor.Changed.Pixels = !shown;
    return outcome;
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
