// Thousands of random steps by one user, and what must hold after each of them.
#include <sys/resource.h>

#include <functional>
#include <random>

#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/color_wells.h"
#include "editing/layer_commands.h"
#include "editing/menu_state.h"
#include "editing/page_commands.h"
#include "editing/scene_input.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tool_palette.h"
#include "editing/tools/object_keys.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using testing::SamePixels;

constexpr int kPageSide = 40;
constexpr int kSteps = 2500;
constexpr int kMostLayers = 12;  // a stack above this is thinned out, so that steps stay quick
constexpr long kMaxMebibytes = 1024;

// All that undo brings back, and what it must not mix up.
bool SameLayer(const document::IconLayer& a, const document::IconLayer& b) {
    return SamePixels(a.Image, b.Image) && a.Rect == b.Rect && a.BaseRect == b.BaseRect &&
           a.Opacity == b.Opacity && a.ScaleValue == b.ScaleValue && a.Visible == b.Visible &&
           a.ImageWidth == b.ImageWidth && a.ImageHeight == b.ImageHeight && a.Hue == b.Hue &&
           a.Contrast == b.Contrast && a.Brightness == b.Brightness &&
           a.Saturation == b.Saturation && a.ClipNextLayer == b.ClipNextLayer &&
           a.Region.IsNull() == b.Region.IsNull() && a.Region.Bounds() == b.Region.Bounds();
}

::testing::AssertionResult SameStack(const document::Document& a, const document::Document& b) {
    if (a.LayerCount() != b.LayerCount() || a.SelectedLayer != b.SelectedLayer)
        return ::testing::AssertionFailure()
               << a.LayerCount() << " layers, selected " << a.SelectedLayer << " against "
               << b.LayerCount() << ", selected " << b.SelectedLayer;
    for (std::size_t i = 0; i < a.Layers.size(); ++i)
        if (!SameLayer(a.Layers[i], b.Layers[i]))
            return ::testing::AssertionFailure() << "layer " << i << " differs";
    return ::testing::AssertionSuccess();
}

class RandomUser : public EditingTest, public ::testing::WithParamInterface<unsigned> {
protected:
    RandomUser() {
        editor.View.SceneWidth = 200;
        editor.View.SceneHeight = 150;
        NewPage(kPageSide, kPageSide);
        editor.View.Zoom = 1;
        editor.Colors = {0xFF3060C0, 0x80F0D020};
    }

    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    bool Chance(int percent) { return Below(100) < percent; }

    Pointer RandomPointer() {
        Pointer pointer;
        pointer.Button = Chance(90) ? 1 : 2;
        pointer.Shift = Chance(20) ? 1 : 0;
        if (Chance(3)) {
            constexpr float kFar[] = {-1e9F, -40000, 0, 40000, 1e9F};
            pointer.X = kFar[Below(5)];
            pointer.Y = kFar[Below(5)];
        } else {
            pointer.X = static_cast<float>(Below(260) - 30);
            pointer.Y = static_cast<float>(Below(210) - 30);
        }
        return pointer;
    }

    void Gesture() {
        MoveScene(editor, RandomPointer());
        PressScene(editor, RandomPointer());
        for (int i = Below(5); i > 0; --i) {
            MoveScene(editor, RandomPointer());
            if (Chance(3))
                Command();
        }
        ReleaseScene(editor, RandomPointer());
    }

    void SliderDrag() {
        const auto adjustment = static_cast<Adjustment>(Below(4));
        switch (Below(3)) {
            case 0:
                PressOpacity(editor);
                ChangeOpacity(editor, Below(101));
                return ReleaseOpacity(editor);
            case 1:
                PressAdjustment(editor);
                ChangeAdjustment(editor, adjustment, Below(101));
                return ReleaseAdjustment(editor, adjustment);
            default:
                PressScale(editor);
                ChangeScale(editor, Below(101));
                return ReleaseScale(editor);
        }
    }

    void Style() {
        void (*const styles[])(Editor&) = {Crystal, Vista,      Fresh,         Reflection,
                                           Shade,   iOS,        Mac,           Sharpen,
                                           Blur,    DropShadow, DisabledState, HotState};
        styles[Below(std::size(styles))](editor);
    }

    void View() {
        void (*const views[])(Editor&) = {ZoomIn, ZoomOut, OriginalSize};
        views[Below(3)](editor);
        if (Chance(50))
            editor.View.Zoom = 0.2 + Below(30) / 10.0;
    }

    void Command() {
        using Action = std::function<void()>;
        const int layer =
            editor.Document.LayerCount() > 0 ? Below(editor.Document.LayerCount()) : 0;
        const Action actions[] = {
            [&] { SetLayerOrder(editor, static_cast<LayerOrder>(Below(4))); },
            [&] { FlipRotateLayer(editor, static_cast<FlipRotate>(Below(4))); },
            [&] { CombineIcon(editor); },
            [&] { DeleteCommand(editor); },
            [&] { HideLayerCommand(editor); },
            [&] { HideLayerCommand(editor); },
            [&] { AddLayerCommand(editor); },
            [&] { CutToClipboard(editor); },
            [&] { CopyToClipboard(editor); },
            [&] { PasteFromClipboard(editor); },
            [&] { PasteFromClipboard(editor); },
            [&] {
                host.SetClipboard(testing::FilledPicture(9, 7, 0x40FF0000), "another program");
                PasteFromClipboard(editor);
            },
            [&] {
                if (editor.Document.LayerCount() > 0)
                    SelectLayer(editor, layer);
            },
            [&] { SliderDrag(); },
            [&] { Style(); },
            [&] { View(); },
            [&] { ChangePageWidth(editor, kPageSide - 10 + Below(20)); },
            [&] { SetPageBackground(editor, Chance(50) ? 0 : 0xFF808080); },
            // Never to the very first state: a step from there would replace it.
            [&] {
                if (editor.History.UndoIndex() > 1)
                    Undo(editor);
            },
            [&] { Redo(editor); },
            [&] { OpenEditMenu(editor); },
            [&] { ExchangeColor(editor); },
            [&] { UseColorWell(editor, Below(2)); },
            [&] { ChooseFill(editor, static_cast<editing::FillKind>(Below(4))); },
            [&] { ChangeLineWidth(editor, 1 + Below(Chance(20) ? 255 : 6)); },
            [&] { ChangeBrushSize(editor, 1 + Below(100)); },
            [&] { ChangeBrushOpacity(editor, 1 + Below(100)); },
            [&] { ChooseSelection(editor, 1 + Below(3)); },
            [&] { ChooseEraser(editor, 1 + Below(2)); },
        };
        actions[Below(std::size(actions))]();
    }

    void Step() {
        const int kind = Below(10);
        if (kind < 2)
            ClickToolButton(editor, 1 + Below(12));
        else if (kind < 6)
            Gesture();
        else if (kind < 7)
            KeyDownScene(editor, Chance(90) ? key_codes::Left + Below(4) : key_codes::Delete);
        else
            Command();
        while (editor.Document.LayerCount() > kMostLayers) {
            SelectLayer(editor, Below(kMostLayers));
            DeleteIcon(editor, true);
        }
    }

    void CheckDocument() {
        const document::Document& document = editor.Document;
        ASSERT_GE(document.SelectedLayer, document::kNoLayer);
        ASSERT_LT(document.SelectedLayer, std::max(document.LayerCount(), 1));
        ASSERT_FALSE(editor.DragActive);
        ASSERT_TRUE(editor.StrokeBackup.IsEmpty());
        ASSERT_EQ(host.Busy, 0);
        ASSERT_EQ(host.Messages, std::vector<std::string>{});
        ASSERT_EQ(editor.Scene.Width(), editor.View.SceneWidth);
    }

    // What was composed step by step is what a composition from nothing gives.
    void CheckPage() {
        Compose(editor);
        document::Compositor fresh;
        graphics::Bitmap canvas;
        document::Document document = editor.Document;
        fresh.Compose(document, graphics::InterpolationMode::NearestNeighbor, canvas);
        ASSERT_TRUE(SamePixels(editor.Canvas, canvas));
    }

    std::mt19937 random_{GetParam()};
};

TEST_P(RandomUser, KeepsTheDocumentWhole) {
    const document::Document first = editor.Document;
    AddLayerCommand(editor);
    for (int i = 0; i < kSteps; ++i) {
        SCOPED_TRACE("step " + std::to_string(i));
        Step();
        CheckDocument();
        if (i % 20 == 0)
            CheckPage();
        if (HasFatalFailure())
            return;
    }
    const document::Document last = editor.Document;
    const int steps = editor.History.UndoIndex();
    for (int i = 0; i < steps; ++i)
        Undo(editor);
    EXPECT_TRUE(SameStack(editor.Document, first));
    for (int i = 0; i < steps; ++i)
        Redo(editor);
    EXPECT_TRUE(SameStack(editor.Document, last));
    CheckPage();

    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    EXPECT_LT(usage.ru_maxrss / 1024, kMaxMebibytes);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUser, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace orbelle::editing
