#include "editing/run.h"

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
    RunTest() {
        OpenPage(24, 20);
        PutLayer(testing::PictureOf({"######", "######", "##..##", "##..##"}), 3, 4);
        PutLayer(testing::FilledPicture(5, 5, 0x80C02040), 6, 7);
    }
};

TEST_F(RunTest, TheObserverIsToldOnce) {
    for (const NamedCommand& command : LayerCommands()) {
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

// Also with two steps to undo and one to do again.
TEST_F(RunTest, AFailureLeavesEverythingAsItWas) {
    for (const FlipRotate mode :
         {FlipRotate::FlipHorizontal, FlipRotate::Rotate90Cw, FlipRotate::FlipVertical})
        Do(FlipRotateLayer, mode);
    Do(Undo);
    editor.Selection.AddFrame(8, 9, 4, 5, document::FrameShape::Rectangle);
    Show();
    std::vector<NamedCommand> commands = LayerCommands();
    commands.insert(
        commands.end(),
        {{"undo and a step", [](Editor& e) { Undo(e), AddEmptyLayer(e, 3, 3); }},
         {"redo and a step", [](Editor& e) { Redo(e), AddEmptyLayer(e, 3, 3); }},
         {"select", [](Editor& e) { SelectLayer(e, 0); }},
         {"page", [](Editor& e) { ChangePageWidth(e, 9); }},
         {"tool", [](Editor& e) { ClickToolButton(e, 5); }},
         {"zoom", ZoomIn},
         {"new", [](Editor& e) { NewDocument(e, 4, 4); }},
         {"open", [](Editor& e) { OpenPicture(e, testing::FilledPicture(9, 9, kBlue)); }},
         {"press", [this](Editor& e) { PressScene(e, OnPage(3, 4)); }}});
    const std::string before = testing::AccountOf(editor);
    const std::string page = testing::AccountOf(editor.Canvas);
    for (const NamedCommand& command : commands) {
        SCOPED_TRACE(command.Name);
        const Outcome outcome = editing::Run(editor, [&](Editor& e) {
            command.Run(e);
            throw Error("halfway");
        });
        EXPECT_EQ(outcome.Problem(), "halfway");
        EXPECT_EQ(testing::AccountOf(editor), before);
        EXPECT_EQ(testing::AccountOf(editor.Canvas), page);
        EXPECT_TRUE(recorder.Last.Pixels && recorder.Last.Stack && recorder.Last.Controls);
        EXPECT_FALSE(recorder.Last.Tip || recorder.Last.Title);
    }
}

}  // namespace
}  // namespace orbelle::editing
