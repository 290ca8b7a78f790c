// Thousands of random steps by one user, and what must hold after each of them.
#include <functional>
#include <random>

#include "editing/adjust_sliders.h"
#include "editing/buttons.h"
#include "editing/clipboard_commands.h"
#include "editing/color_wells.h"
#include "editing/give_up.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "editing/scene_input.h"
#include "editing/selection_commands.h"
#include "editing/size_commands.h"
#include "editing/stack_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

constexpr int kPageSide = 40;
constexpr int kSteps = 2500;
constexpr int kMostLayers = 12;  // a stack above this is thinned out, so that steps stay quick

class RandomUser : public EditingTest, public ::testing::WithParamInterface<unsigned> {
protected:
    RandomUser() {
        OpenPage(kPageSide, kPageSide);
        editor.Tools.Colors = {0xFF3060C0, 0x80F0D020};
    }

    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    bool Chance(int percent) { return Below(100) < percent; }

    Pointer RandomPointer() {
        constexpr float kFar[] = {-1e9F, -40000, 0, 40000, 1e9F};
        Pointer pointer{Chance(90) ? 1 : 2, Chance(20) ? 1 : 0, 0, 0};
        const bool far = Chance(3);
        pointer.X = far ? kFar[Below(5)] : static_cast<float>(Below(260) - 30);
        pointer.Y = far ? kFar[Below(5)] : static_cast<float>(Below(210) - 30);
        return pointer;
    }

    // A layer is not dragged off the plane.
    void Drag(void (*step)(Editor&, const Pointer&)) {
        const Pointer pointer = RandomPointer();
        EXPECT_THAT(RunDuringDrag(editor, [&](Editor& e) { step(e, pointer); }).Problem(),
                    ::testing::AnyOf("", ::testing::HasSubstr("4194304 pixels away")));
    }

    void Gesture() {
        Drag(MoveScene);
        Do(PressScene, RandomPointer());
        for (int i = Below(5); i > 0; --i) {
            Drag(MoveScene);
            if (Chance(3))
                Command();
            if (Chance(3))
                EditingTest::Step(CancelInput);
        }
        Drag(ReleaseScene);
    }

    void SliderDrag() {
        const auto kind = static_cast<Adjustment>(Below(4));
        const int to = Below(101);
        const std::vector<editing::Command> drags[] = {
            {PressOpacity, [=](Editor& e) { ChangeOpacity(e, to); }, ReleaseOpacity},
            {[=](Editor& e) { PressAdjustment(e, kind); },
             [=](Editor& e) { ChangeAdjustment(e, kind, to); },
             [=](Editor& e) { ReleaseAdjustment(e, kind); }},
            {PressScale, [=](Editor& e) { ChangeScale(e, to); }, ReleaseScale},
            {PressPageSize, [=](Editor& e) { ChangePageHeight(e, kPageSide - 20 + to / 4); },
             ReleasePageSize}};
        const auto& drag = drags[Below(IsMasterInForce() ? 4 : 3)];
        Do(drag[0]);
        EditingTest::Step(drag[1]);
        if (Chance(10))
            Do(Redo);
        if (Chance(10))
            EditingTest::Step(CancelDrag);
        EditingTest::Step(drag[2]);
    }

    void View() {
        void (*const views[])(Editor&) = {ZoomIn, ZoomOut, OriginalSize, FitWhole};
        Do(views[Below(4)]);
        if (Chance(50))
            SetZoom(0.2 + Below(30) / 10.0);
    }

    bool IsMasterInForce() const { return editor.Document.EditedSize == document::Family::kMaster; }

    // Back to the master as often as to a size.
    void ChangePage() {
        const int size = Chance(50) ? 8 : 24;
        if (Chance(45))
            Do(GoToPage, document::Family::kMaster);
        else if (Chance(20) && editor.Document.ArtworkOf(size))
            Do(DropArtwork, size);
        else if (Chance(20))
            Do(MakeArtwork, size, static_cast<filters::SizeRecipe>(Below(6)));
        else
            Do(EditSize, size);
    }

    void Command() {
        using graphics::Argb;
        const editing::Command plain[] = {PressHideLayer,     PressAddLayer,  CopyToClipboard,
                                          PasteFromClipboard, Redo,           ExchangeColor,
                                          SelectAll,          InvertSelection};
        const std::function<void()> actions[] = {
            [&] { Do(RandomCommand().Run); },
            [&] { Do(RandomCommand().Run); },
            [&] { Do(plain[Below(8)]); },
            [&] { Do(plain[Below(8)]); },
            [&] { Do(plain[Below(8)]); },
            [&] {
                recorder.Put(testing::FilledPicture(9, 7, 0x40FF0000), "another program");
                Do(PasteFromClipboard);
            },
            [&] { Do(SelectLayer, Below(editor.Page().LayerCount() + 1)); },
            [&] { SliderDrag(); },
            [&] { View(); },
            [&] {
                if (IsMasterInForce())
                    Do(SetPageSize, kPageSide - 10 + Below(20), kPageSide);
            },
            [&] { ChangePage(); },
            [&] { Do(SetPageBackground, Argb{Chance(50) ? 0 : 0xFF808080}); },
            // Never to the very first state: a step from there would replace it.
            [&] { Steps() > 1 ? Do(Undo) : Do(Redo); },
            [&] { Do(UseColorWell, Below(2)); },
            [&] { Do(ChooseFill, static_cast<FillKind>(Below(4))); },
            [&] {
                Do(SetMirror, MirrorAxes{Chance(30), Chance(30)});
            },
            [&] { Do(ChangeLineWidth, 1 + Below(Chance(20) ? 255 : 6)); },
            [&] { Do(ChangeBrushSize, 1 + Below(100)); },
            [&] { Do(ChangeBrushOpacity, 1 + Below(100)); },
            [&] { Do(ChooseSelection, SelectionToolOf(1 + Below(3))); },
            [&] { Do(ChooseEraser, EraserToolOf(1 + Below(2))); },
            [&] { Fail(); },
        };
        actions[Below(std::size(actions))]();
    }

    const NamedCommand& RandomCommand() {
        return commands_[static_cast<std::size_t>(Below(static_cast<int>(commands_.size())))];
    }

    // A command that fails when it is done.
    void Fail() {
        const std::string before = testing::AccountOf(editor.Document);
        const NamedCommand& command = RandomCommand();
        const bool wasDragging = IsDragging();
        EXPECT_TRUE(editing::Run(editor, [&](Editor& e) {
                        command.Run(e);
                        throw Error("no");
                    }).Failed());
        EXPECT_TRUE(wasDragging || testing::AccountOf(editor.Document) == before) << command.Name;
    }

    void Step() {
        const int kind = Below(10);
        if (kind < 2)
            Do(ClickToolButton, 1 + Below(12));
        else if (kind < 6)
            Gesture();
        else if (kind < 7)
            Do(KeyDownScene, Chance(90) ? static_cast<SceneKey>(Below(4)) : SceneKey::Delete);
        else
            Command();
        while (editor.Page().LayerCount() > kMostLayers) {
            Do(SelectLayer, Below(kMostLayers));
            Do(DeleteLayer);
        }
    }

    void CheckDocument() {
        const document::Page& page = editor.Page();
        ASSERT_GE(page.SelectedLayer, document::kNoLayer);
        ASSERT_LT(page.SelectedLayer, std::max(page.LayerCount(), 1));
        ASSERT_FALSE(IsDragging());
        ASSERT_EQ(editor.Scene.Width(), editor.View.SceneWidth);
    }

    // The states are those of the document as it stands, whatever led to it.
    void CheckStates() {
        const document::Page& page = editor.Page();
        ASSERT_TRUE(editor.States == StatesOf(editor, editor.History, recorder.HasPicture()));
        ASSERT_EQ(editor.States.UndoName.empty(), Steps() == 0);
        ASSERT_EQ(editor.States.RedoName.empty(), editor.History.RedoCount() == 0);
        ASSERT_EQ(editor.Sliders.PageWidth.Value, page.Width);
        ASSERT_EQ(editor.Sliders.PageHeight.Value, page.Height);
        ASSERT_EQ(editor.Sliders.Opacity.Enabled, page.HasSelection());
        ASSERT_TRUE(!page.HasSelection() ||
                    editor.Sliders.Opacity.Value ==
                        graphics::RoundToEven(page.Selected().Opacity * 100.0));
    }

    // What was composed step by step is what a composition from nothing gives.
    void CheckPage() {
        document::Compositor fresh;
        graphics::Bitmap canvas;
        document::Page page = editor.Page();
        fresh.Compose(page, graphics::InterpolationMode::NearestNeighbor, canvas);
        ASSERT_TRUE(testing::SamePixels(editor.Canvas, canvas));
    }

    const std::vector<NamedCommand> commands_ = LayerCommands();
    std::mt19937 random_{GetParam()};
};

TEST_P(RandomUser, KeepsTheDocumentWhole) {
    const auto account = [this] {
        return testing::AccountOf(editor.Document) + std::to_string(editor.Document.Background);
    };
    const std::string first = account();
    Do(PressAddLayer);
    for (int i = 0; i < kSteps; ++i) {
        SCOPED_TRACE("step " + std::to_string(i));
        Step();
        CheckDocument();
        CheckStates();
        if (i % 20 == 0)
            CheckPage();
        if (HasFailure())
            return;
    }
    const std::string last = account();
    const int steps = Steps();
    for (const auto command : {Undo, Redo}) {
        for (int i = 0; i < steps; ++i) {
            Do(command);
            CheckStates();
        }
        EXPECT_EQ(account(), command == Undo ? first : last);
    }
    CheckPage();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUser, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace orbelle::editing
