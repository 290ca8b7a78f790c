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

TEST_F(RunTest, WhatIsToldIsWhatChanged) {
    const auto told = [&] {
        const Changes& last = recorder.Last;
        return std::string(last.Pixels ? "pixels " : "") + (last.Scene ? "scene " : "") +
               (last.Stack ? "stack " : "") + (last.Controls ? "controls " : "") +
               (last.Overlays ? "overlays " : "") + (last.Title ? "title " : "");
    };
    const std::pair<Command, const char*> commands[] = {
        {[](Editor&) {}, ""},
        {Undo, ""},  // there is nothing to undo
        {[](Editor& e) { SelectLayer(e, 0); }, "scene stack controls "},
        {PressHideLayer, "pixels scene stack controls "},
        {[](Editor& e) { SetPageBackground(e, kBlue); }, "pixels stack controls "},
        {[](Editor& e) { NewDocument(e, 3, 3); }, "pixels scene stack controls title "},
        {TickZoomAnimation, "scene "},
        {[](Editor& e) { ClickToolButton(e, 5); }, "scene controls "},
        {[this](Editor& e) { MoveScene(e, OnPage(1, 1)); }, "overlays "},
    };
    for (const auto& [command, expected] : commands) {
        Do(command);
        EXPECT_EQ(told(), expected);
    }
    recorder.Copied = testing::FilledPicture(1, 1, kBlue);  // another program's
    Do([](Editor& e) { e.Changed.Message = "half of it"; });
    EXPECT_EQ(told(), "controls ");
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
    const Outcome memory = editing::Run(editor, [](Editor&) { throw std::bad_alloc(); });
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
    editor.Selection.AddFrame({4, 5, 4, 4}, document::FrameShape::Rectangle);
    Show();
    std::vector<NamedCommand> commands = LayerCommands();
    commands.insert(
        commands.end(),
        {{"undo and a step", [](Editor& e) { Undo(e), AddEmptyLayer(e, 3, 3); }},
         {"redo and a step", [](Editor& e) { Redo(e), AddEmptyLayer(e, 3, 3); }},
         {"select", [](Editor& e) { SelectLayer(e, 0); }},
         {"page", [](Editor& e) { SetPageSize(e, 9, 7); }},
         {"background", [](Editor& e) { SetPageBackground(e, kBlue); }},
         {"tool", [](Editor& e) { ClickToolButton(e, 5); }},
         {"zoom", ZoomIn},
         {"new", [](Editor& e) { NewDocument(e, 4, 4); }},
         {"open", [](Editor& e) { OpenPicture(e, testing::FilledPicture(9, 9, kBlue)); }},
         {"press", [this](Editor& e) { PressScene(e, OnPage(3, 4)); }}});
    const std::string before = testing::AccountOf(editor);
    const std::string page = testing::AccountOf(editor.Canvas);
    int calls = recorder.Calls;
    for (const NamedCommand& command : commands) {
        SCOPED_TRACE(command.Name);
        const Outcome outcome = editing::Run(editor, [&](Editor& e) {
            command.Run(e);
            throw Error("halfway");
        });
        EXPECT_EQ(outcome.Problem(), "halfway");
        EXPECT_EQ(recorder.Calls, ++calls);
        EXPECT_EQ(testing::AccountOf(editor), before);
        EXPECT_EQ(testing::AccountOf(editor.Canvas), page);
        EXPECT_TRUE(recorder.Last.Pixels && recorder.Last.Stack && recorder.Last.Controls);
        EXPECT_FALSE(recorder.Last.Tip || recorder.Last.Title);
    }
}

}  // namespace
}  // namespace orbelle::editing
