#include "editing/run.h"

#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "editing/stack_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

class RunTest : public EditingTest {
protected:
    RunTest() { Open(); }

    void Open() {
        OpenPage(24, 20);
        PutLayer(testing::PictureOf({"######", "######", "##..##", "##..##"}), 3, 4);
        PutLayer(testing::FilledPicture(5, 5, 0x80C02040), 6, 7);
    }

    // Two steps that can be undone and one that can be done again.
    void MakeHistory() {
        Do(PressAddLayer);
        Do(Undo);
        editor.History.ClearHistory();
        for (const FlipRotate mode :
             {FlipRotate::FlipHorizontal, FlipRotate::Rotate90Cw, FlipRotate::FlipVertical})
            Do(FlipRotateLayer, mode);
        Do(Undo);
    }

    // The stacks of the whole history, from the first to the last. Goes back to where it was.
    std::vector<std::string> Stacks() {
        const int steps = Steps(), ahead = editor.History.RedoCount();
        while (Steps() > 0)
            Do(Undo);
        std::vector<std::string> stacks{StackText(editor.Page())};
        while (editor.History.RedoCount() > 0) {
            Do(Redo);
            stacks.push_back(StackText(editor.Page()));
        }
        for (int i = 0; i < ahead; ++i)
            Do(Undo);
        EXPECT_EQ(Steps(), steps);
        return stacks;
    }

    // Those of LayerCommands(), too.
    std::vector<NamedCommand> AllCommands() {
        const auto tool = [this](Tool kind, float x, float y) {
            return [=, this](Editor& e) {
                e.Tools.InUse = kind;
                PressScene(e, OnPage(x, y));
                MoveScene(e, OnPage(x + 4, y + 3));
                ReleaseScene(e, OnPage(x + 4, y + 3));
            };
        };
        std::vector<NamedCommand> commands{
            {"undo", Undo},
            {"redo", Redo},
            {"undo and another step",
             [](Editor& e) {
                 Undo(e);
                 AddEmptyLayer(e, 3, 3);
             }},
            {"redo and another step",
             [](Editor& e) {
                 Redo(e);
                 AddEmptyLayer(e, 3, 3);
             }},
            {"add", PressAddLayer},
            {"paste",
             [](Editor& e) {
                 CopyToClipboard(e);
                 PasteFromClipboard(e);
             }},
            {"import", [](Editor& e) { ImportPicture(e, testing::FilledPicture(9, 9, kBlue)); }},
            {"select", [](Editor& e) { SelectLayer(e, 0); }},
            {"page", [](Editor& e) { ChangePageWidth(e, 9); }},
            {"background", [](Editor& e) { SetPageBackground(e, kBlue); }},
            {"tool", [](Editor& e) { ClickToolButton(e, 5); }},
            {"zoom", ZoomIn},
            {"move", tool(Tool::Move, 7, 8)},
            {"pencil", tool(Tool::Pencil, 7, 8)},
            {"ellipse", tool(Tool::FilledEllipse, 7, 8)},
            {"pencil eraser", tool(Tool::PencilEraser, 7, 8)},
            {"selection", tool(Tool::SelectRectangle, 7, 8)},
            {"polygon", tool(Tool::SelectPolygon, 7, 8)},
        };
        std::ranges::move(LayerCommands(), std::back_inserter(commands));
        return commands;
    }
};

// What any command is answered with.
TEST_F(RunTest, TheObserverIsToldOnce) {
    for (const NamedCommand& command : AllCommands()) {
        for (const auto run : {editing::Run, RunDuringDrag}) {
            SCOPED_TRACE(command.Name);
            recorder.Calls = 0;
            EXPECT_EQ(run(editor, command.Run).Problem(), "");
            EXPECT_EQ(recorder.Calls, 1);
            EXPECT_EQ(run(editor, [](Editor&) { throw Error("no"); }).Problem(), "no");
            EXPECT_EQ(recorder.Calls, 2);
        }
    }
}

TEST_F(RunTest, WhatIsToldIsWhatChanged) {
    const auto told = [&] {
        const Changes& last = recorder.Last;
        return std::string(last.Pixels ? "pixels " : "") + (last.Scene ? "scene " : "") +
               (last.Stack ? "stack " : "") + (last.Controls ? "controls " : "") +
               (last.Overlays ? "overlays " : "") + (last.Title ? "title " : "");
    };
    Do([](Editor&) {});
    EXPECT_EQ(told(), "");
    Do(Undo);  // there is nothing to undo
    EXPECT_EQ(told(), "");
    Do(SelectLayer, 0);
    EXPECT_EQ(told(), "scene stack controls ");
    Do(PressHideLayer);
    EXPECT_EQ(told(), "pixels scene stack controls ");
    Do(SetPageBackground, kBlue);
    EXPECT_EQ(told(), "pixels stack controls ");
    Do(NewDocument, 3, 3);
    EXPECT_EQ(told(), "pixels stack controls title ");
    Do(TickZoomAnimation);  // from 0 to the least zoom
    EXPECT_EQ(told(), "scene controls ");
    Do(TickZoomAnimation);
    EXPECT_EQ(told(), "scene controls ");
    Do(TickZoomAnimation);
    EXPECT_EQ(told(), "scene ");
    Do(ClickToolButton, 5);
    EXPECT_EQ(told(), "scene controls ");
    Step(MoveScene, OnPage(1, 1));
    EXPECT_EQ(told(), "overlays ");
    recorder.Copied = testing::FilledPicture(1, 1, kBlue);  // another program's
    Do([](Editor&) {});
    EXPECT_EQ(told(), "controls ");
    EXPECT_FALSE(
        editing::Run(editor, [](Editor& e) { e.Changed.Message = "half of it"; }).Failed());
    EXPECT_EQ(recorder.Last.Message, "half of it");
    Do([](Editor&) {});
    EXPECT_EQ(recorder.Last.Message, "");
}

TEST_F(RunTest, PixelsAreComposedWhenTheCommandHasEnded) {
    const graphics::Bitmap before = editor.Canvas;
    Do([&](Editor& e) {
        PressHideLayer(e);
        EXPECT_TRUE(e.Canvas.SharesPixelsWith(before));
    });
    EXPECT_FALSE(testing::SamePixels(editor.Canvas, before));
    const graphics::Bitmap scene = editor.Scene;
    Do(SetPageBackground, 0xFF00FF00);
    EXPECT_FALSE(testing::SamePixels(editor.Scene, scene));
}

TEST_F(RunTest, FailuresHaveWordsForTheUser) {
    EXPECT_FALSE(editing::Run(editor, [](Editor&) {}).Failed());
    const Outcome memory = editing::Run(editor, [](Editor&) { throw std::bad_alloc(); });
    EXPECT_TRUE(memory.Failed());
    EXPECT_EQ(memory.Problem(), "There is not enough memory.");
    EXPECT_EQ(editing::Run(editor, [](Editor& e) { NewDocument(e, 0, 5); }).Problem(),
              kPageSizeMessage);
}

TEST_F(RunTest, AFailureLeavesEverythingAsItWas) {
    MakeHistory();
    editor.Selection.AddFrame(8, 9, 4, 5, document::FrameShape::Rectangle);
    Show();
    const std::string before = StateText(editor);
    const ControlStates states = editor.States;
    const std::vector<std::string> stacks = Stacks();
    editor.Selection.AddFrame(8, 9, 4, 5, document::FrameShape::Rectangle);
    ASSERT_EQ(stacks.size(), 4U);
    for (const NamedCommand& command : AllCommands()) {
        SCOPED_TRACE(command.Name);
        const Outcome outcome = editing::Run(editor, [&](Editor& e) {
            command.Run(e);
            throw Error("halfway");
        });
        EXPECT_EQ(outcome.Problem(), "halfway");
        EXPECT_EQ(StateText(editor), before);
        EXPECT_TRUE(editor.States == states || recorder.HasPicture());
        EXPECT_FALSE(IsDragging());
        EXPECT_TRUE(recorder.Last.Pixels && recorder.Last.Stack && recorder.Last.Controls);
        EXPECT_FALSE(recorder.Last.Tip);
    }
    EXPECT_EQ(Stacks(), stacks);
    Do(PressAddLayer);  // and what lies ahead is forgotten by the next step
    EXPECT_EQ(editor.History.RedoCount(), 0);
    Do(Undo);
    EXPECT_EQ(StackText(editor.Page()), stacks[2]);
}

}  // namespace
}  // namespace orbelle::editing
