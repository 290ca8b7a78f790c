// Page size and background as undo steps.
#include "editing/page_commands.h"

#include "editing/adjust_sliders.h"
#include "editing/give_up.h"
#include "editing/layer_bar.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

class PageCommands : public EditingTest {
protected:
    PageCommands() { OpenPage(24, 20); }

    std::string Size() const {
        return std::to_string(editor.Page().Width) + "x" + std::to_string(editor.Page().Height) +
               (editor.Document.Modified ? " modified" : "") + " shown " +
               std::to_string(editor.Sliders.PageWidth.Value) + "x" +
               std::to_string(editor.Sliders.PageHeight.Value);
    }
    void FillHistory(int free = 0) {
        while (Steps() < document::UndoHistory::kMaxSnapshots - free)
            editor.History.PushSnapshot(editor.Document, "Step");
        Show();
    }
};

TEST_F(PageCommands, ADragIsOneStepWhereverItGoes) {
    Do(PressPageSize);
    for (const int width : {30, 300, 9999, -5, 40})
        Step(ChangePageWidth, width);
    EXPECT_EQ(Steps(), 0);
    EXPECT_EQ(Size(), "40x20 modified shown 40x20");
    Step(ReleasePageSize);
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(editor.Canvas.Width(), 40);
    EXPECT_TRUE(editor.Zoom.PageSizeChanged);
    editor.Zoom.PageSizeChanged = false;
    Do(Undo);
    EXPECT_EQ(Size(), "24x20 modified shown 24x20");
    EXPECT_EQ(editor.Canvas.Width(), 24);
    EXPECT_TRUE(editor.Zoom.PageSizeChanged);
    EXPECT_TRUE(recorder.Last.Controls);
    Do(Redo);
    EXPECT_EQ(Size(), "40x20 modified shown 40x20");
    Step(ChangePageHeight, 7);  // no press
    Step(ReleasePageSize);
    EXPECT_EQ(Size(), "40x20 modified shown 40x20");
}

TEST_F(PageCommands, ThePointerMayPassTheSceneMeanwhile) {
    Do(PressPageSize);
    Step(ChangePageWidth, 30);
    for (const Tool tool : {Tool::Move, Tool::Pencil, Tool::SelectPolygon}) {
        editor.Tools.InUse = tool;
        Move(OnPage(3, 3));
        Release(OnPage(4, 3));
    }
    Step(ReleasePageSize);
    EXPECT_EQ(Steps(), 1);
}

// The redo that a step would drop stays, too.
TEST_F(PageCommands, WhatChangesNothingIsNoStep) {
    Do(PressAddLayer);
    Do(Undo);
    editor.Document.Modified = false;
    const std::string before = testing::AccountOf(editor);
    Do(PressPageSize);
    for (const int height : {300, 30, 20})
        Step(ChangePageHeight, height);
    Step(ReleasePageSize);
    Do(PressPageSize);
    Step(ReleasePageSize);
    Do(SetPageSize, 24, 20);
    Do(SetPageBackground, 0);
    EXPECT_EQ(testing::AccountOf(editor), before);
    EXPECT_FALSE(editor.Zoom.PageSizeChanged);
}

TEST_F(PageCommands, ADragGivenUpOrBrokenGoesBack) {
    const std::string before = testing::AccountOf(editor), page = testing::AccountOf(editor.Canvas);
    const Command ends[] = {[](Editor&) {}, CancelInput, Undo};
    for (const bool fails : {false, true}) {
        for (const Command& end : ends) {
            Do(PressPageSize);
            Step(ChangePageWidth, 300);
            if (fails)
                EXPECT_TRUE(RunDuringDrag(editor, [](Editor& e) {
                                ChangePageHeight(e, 300);
                                throw Error("halfway");
                            }).Failed());
            else
                Do(end);
            EXPECT_EQ(testing::AccountOf(editor), before);
            EXPECT_EQ(testing::AccountOf(editor.Canvas), page);
            EXPECT_TRUE(recorder.Last.Controls && recorder.Last.Pixels);
            Step(ChangePageWidth, 300);
            Step(ReleasePageSize);
            EXPECT_EQ(testing::AccountOf(editor), before);
        }
    }
}

TEST_F(PageCommands, BackgroundsAreSteps) {
    for (const graphics::Argb color : {kBlue, kBlue, graphics::Argb{0}, 0x80102030U})
        Do(SetPageBackground, color);
    EXPECT_EQ(Steps(), 3);
    for (const graphics::Argb color : {graphics::Argb{0}, kBlue, graphics::Argb{0}}) {
        Do(Undo);
        EXPECT_EQ(editor.Document.Background, color);
        EXPECT_TRUE(recorder.Last.Controls && recorder.Last.Pixels);
    }
    Do(Redo);
    EXPECT_EQ(editor.Document.Background, kBlue);
}

TEST_F(PageCommands, ALargePageThatWasOpenedKeepsItsSizeAsTheSlidersEnd) {
    Do([](Editor& e) { OpenPicture(e, testing::FilledPicture(600, 90, kBlue)); });
    Do(SetPageSize, 20, 20);
    Do(SetPageSize, 9999, 9999);
    EXPECT_EQ(Size(), "600x512 modified shown 600x512");
    Do(NewDocument, 24, 20);
    Do(SetPageSize, 9999, 20);
    EXPECT_EQ(editor.Page().Width, 512);
}

TEST_F(PageCommands, ScrollBarsAndSelectionFollowThePage) {
    SetZoom(1);
    editor.Selection.AddFrame({4, 6, 16, 12}, document::FrameShape::Rectangle);
    const auto selected = [this] { return PixelRuns(editor.Selection.Region().Rects()); };
    Do(SetPageSize, 10, 12);
    Do(SetPageSize, 400, 12);
    const document::ScrollBar& bar = editor.View.HorizontalScroll;
    EXPECT_TRUE(bar.Visible);
    EXPECT_EQ(std::pair(bar.Value, bar.Max), std::pair(100, 200));
    EXPECT_EQ(selected(), "6-17: 4-19") << "a page's new size alone cuts nothing";
    Do(ScrollHorizontally, 20);
    Do(SetPageSize, 300, 12);
    EXPECT_EQ(std::pair(bar.Value, bar.Max), std::pair(10, 100)) << "scrolled as far as before";
    Do(Undo);
    EXPECT_EQ(std::pair(bar.Value, bar.Max), std::pair(20, 200));
    Do(Undo);
    EXPECT_FALSE(bar.Visible);
    EXPECT_EQ(std::pair(bar.Value, bar.Max), std::pair(5, 10)) << "in the middle";
    EXPECT_EQ(selected(), "6-11: 4-9");
    Do(Redo);
    EXPECT_EQ(selected(), "6-11: 4-9");
    editor.Selection.Start();
    editor.Selection.AddFrame({200, 6, 100, 3}, document::FrameShape::Rectangle);
    Do(Undo);
    EXPECT_FALSE(editor.Selection.Exists());
}

// Sliders of all kinds: the press is told, what follows does nothing, and undo makes room.
TEST_F(PageCommands, AFullHistoryRefusesAWholeDrag) {
    PutLayer(testing::FilledPicture(6, 4, kBlue), 3, 4);
    FillHistory();
    const std::vector<Command> drags[] = {
        {PressPageSize, [](Editor& e) { ChangePageWidth(e, 9); }, ReleasePageSize},
        {PressOpacity, [](Editor& e) { ChangeOpacity(e, 9); }, ReleaseOpacity},
        {PressScale, [](Editor& e) { ChangeScale(e, 70); }, ReleaseScale},
        {[](Editor& e) { PressAdjustment(e, Adjustment::Hue); },
         [](Editor& e) { ChangeAdjustment(e, Adjustment::Hue, 70); },
         [](Editor& e) { ReleaseAdjustment(e, Adjustment::Hue); }}};
    const std::string before = testing::AccountOf(editor.Page());
    for (const auto& drag : drags) {
        EXPECT_TRUE(editing::Run(editor, drag[0]).Failed());
        EXPECT_FALSE(IsDragging());
        Step(drag[1]);
        Step(drag[2]);
        EXPECT_EQ(testing::AccountOf(editor.Page()), before);
        EXPECT_EQ(Steps(), document::UndoHistory::kMaxSnapshots);
    }
    for (const auto& drag : drags) {
        Do(Undo);
        Do(drag[0]);
        Step(drag[1]);
        Step(drag[2]);
        EXPECT_EQ(Steps(), document::UndoHistory::kMaxSnapshots);
        EXPECT_NE(testing::AccountOf(editor.Page()), before);
    }
    Do(Undo);
    EXPECT_TRUE(editing::Run(editor, [](Editor& e) { SetPageSize(e, 30, 31); }).Failed());
    EXPECT_EQ(editor.Page().Width, 24) << "half of it";
}

}  // namespace
}  // namespace orbelle::editing
