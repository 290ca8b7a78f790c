// An editor whose observer takes notes, a page on its scene and a hand that moves over it.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "editing/document_commands.h"
#include "editing/run.h"
#include "editing/scene_input.h"
#include "support/editor_account.h"
#include "support/pictures.h"
#include "support/pixel_runs.h"

namespace orbelle::editing {

class Recorder : public EditorObserver, public Clipboard {
public:
    int Calls = 0;  // of Changed
    Changes Last;
    graphics::Bitmap Copied;
    std::string Mark;

    void Changed(const Changes& changes) override {
        ++Calls;
        Last = changes;
    }
    void Put(const graphics::Bitmap& picture, const std::string& text) override {
        Copied = picture;
        Mark = text;
    }
    bool HasPicture() override { return !Copied.IsEmpty(); }
    graphics::Bitmap Picture() override { return Copied; }
    std::string Text() override { return Mark; }

    int LastTip() const { return Last.Tip ? Last.Tip->Number : -1; }
};

// What is held down during a gesture.
struct Held {
    int Button = 1;
    int Shift = 0;
};

inline constexpr Held kShift{1, 1};
inline constexpr Held kRightButton{2, 0};

// Gestures are told in page pixels: the pointer is in the middle of each. The page lies centred on
// a scene of 200 x 150.
class EditingTest : public ::testing::Test {
protected:
    static constexpr graphics::Argb kBlue = 0xFF336699;

    EditingTest() {
        editor.View.SceneWidth = 200;
        editor.View.SceneHeight = 150;
        editor.Tools.Colors = {kBlue, 0xFFC08040};
    }

    // A command of the core with its arguments, which goes well.
    void Do(const auto& routine, const auto&... arguments) {
        EXPECT_EQ(editing::Run(editor, [&](Editor& e) { routine(e, arguments...); }).Problem(), "");
    }
    void Step(const auto& routine, const auto&... arguments) {
        EXPECT_EQ(RunDuringDrag(editor, [&](Editor& e) { routine(e, arguments...); }).Problem(),
                  "");
    }

    // After a test has changed the editor itself.
    void Show() {
        Do([](Editor& e) { NoteStack(e.Changed); });
    }

    // A page with one transparent layer of its size.
    void OpenPage(int width, int height, double zoom = 1) {
        Do(NewDocument, width, height);
        SetZoom(zoom);
    }
    void SetZoom(double zoom) {
        editor.View.Zoom = zoom;
        Show();
    }

    // On top and selected; not an undo step.
    document::IconLayer& PutLayer(const graphics::Bitmap& image, int x, int y) {
        document::IconLayer& layer = editor.Page().Layers.emplace_back();
        layer.Image = image;
        document::PlaceAt(layer, {x, y, image.Width(), image.Height()});
        layer.BaseRect = layer.Rect;
        layer.Region = graphics::Region::FromRect(layer.Rect);
        layer.Region.Translate(-1, 0);
        editor.Page().SelectedLayer = editor.Page().LayerCount() - 1;
        Show();
        return layer;
    }
    // In place of all layers.
    document::IconLayer& PutOnlyLayer(const graphics::Bitmap& image, int x, int y) {
        editor.Page().Layers.clear();
        return PutLayer(image, x, y);
    }

    void SelectNone() {
        editor.Page().SelectedLayer = document::kNoLayer;
        Show();
    }

    document::IconLayer& Layer(int index) {
        return editor.Page().Layers.at(static_cast<std::size_t>(index));
    }
    std::string Drawn(int layer = 0) { return PixelRuns(Layer(layer).Image); }
    int Steps() const { return editor.History.UndoIndex(); }
    bool IsDragging() const { return !std::holds_alternative<std::monostate>(editor.Drag); }

    Pointer OnScene(float x, float y, Held held = {}) const {
        return {held.Button, held.Shift, x, y};
    }
    Pointer OnPage(float x, float y, Held held = {}) const {
        const double zoom = editor.View.Zoom;
        const double left = (editor.View.SceneWidth - editor.Page().Width * zoom) / 2;
        const double top = (editor.View.SceneHeight - editor.Page().Height * zoom) / 2;
        return OnScene(static_cast<float>(left + (x + 0.5) * zoom),
                       static_cast<float>(top + (y + 0.5) * zoom), held);
    }

    // A real pointer moves to the place where it presses.
    void Press(const Pointer& pointer) {
        Step(MoveScene, pointer);
        Do(PressScene, pointer);
    }
    void Move(const Pointer& pointer) { Step(MoveScene, pointer); }
    void Release(const Pointer& pointer) { Step(ReleaseScene, pointer); }
    void Click(float x, float y, Held held = {}) {
        Press(OnPage(x, y, held));
        Release(OnPage(x, y, held));
    }

    // All but the release, which comes at the last point.
    void DragWithoutRelease(const std::vector<graphics::PointF>& points, Held held = {}) {
        Press(OnPage(points.front().X, points.front().Y, held));
        for (std::size_t i = 1; i < points.size(); ++i)
            Move(OnPage(points[i].X, points[i].Y, held));
    }
    void Drag(const std::vector<graphics::PointF>& points, Held held = {}) {
        DragWithoutRelease(points, held);
        Release(OnPage(points.back().X, points.back().Y, held));
    }

    Recorder recorder;
    Editor editor{recorder, recorder};
};

struct NamedCommand {
    const char* Name;
    Command Run;
    const char* Step = "";  // what its undo steps are called; empty: it has none
    int Tip = -1;           // that it asks for
};

// All that work on the selected layer, and undo and redo.
std::vector<NamedCommand> LayerCommands();

}  // namespace orbelle::editing
