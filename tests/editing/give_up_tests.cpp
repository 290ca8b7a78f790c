#include "editing/give_up.h"

#include "editing/adjust_sliders.h"
#include "editing/page_commands.h"
#include "editing/stack_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using graphics::RectI;

// A selection, a picture that reaches off the page, a step to undo and one to do again.
class GiveUp : public EditingTest {
protected:
    GiveUp() {
        OpenPage(24, 20);
        PutOnlyLayer(testing::PictureOf({"######", "######", "##..##"}), 19, 4);
        Do(FlipRotateLayer, FlipRotate::FlipHorizontal);
        Do(FlipRotateLayer, FlipRotate::Rotate90Cw);
        Do(Undo);
        editor.Selection.AddFrame({2, 3, 9, 9}, document::FrameShape::Ellipse);
        editor.Document.Modified = false;
        Show();
    }

    std::string Account() const {
        return testing::AccountOf(editor) + testing::AccountOfPictures(editor);
    }
    void PressAndMove() { DragWithoutRelease({{20, 5}, {19, 7}, {3, 4}}); }
};

TEST_F(GiveUp, ACancelledDragNeverWas) {
    const struct {
        const char* Name;
        Tool InUse;
        std::function<void()> Drag;
    } cases[] = {
        {"opacity", Tool::Move, [&] { Do(PressOpacity), Step(ChangeOpacity, 30); }},
        {"hue", Tool::Move,
         [&] {
             Do(PressAdjustment, Adjustment::Hue);
             for (const int value : {70, 20})
                 Step(ChangeAdjustment, Adjustment::Hue, value);
         }},
        {"scale", Tool::Move, [&] { Do(PressScale), Step(ChangeScale, 90); }},
        {"page size", Tool::Move, [&] { Do(PressPageSize), Step(ChangePageWidth, 90); }},
        {"pencil", Tool::Pencil, [&] { PressAndMove(); }},
        {"pencil eraser", Tool::PencilEraser, [&] { PressAndMove(); }},
        {"brush eraser", Tool::BrushEraser, [&] { PressAndMove(); }},
        {"frame", Tool::SelectRectangle, [&] { PressAndMove(); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        editor.Tools.InUse = c.InUse;
        for (const float x : {0.0F, 3.0F})  // the mark is where the drag will leave it
            Move(OnPage(x, 4));
        const std::string before = Account();
        c.Drag();
        EXPECT_TRUE(IsDragging());
        EXPECT_NE(Account(), before);
        Step(CancelDrag);
        EXPECT_EQ(Account(), before);
    }
    Do(Redo);
    EXPECT_EQ(Layer(0).ImageWidth, 3);
}

// What the press left stays then, as a step that can be undone.
TEST_F(GiveUp, ACancelThatFailsLeavesAWholeHistory) {
    Do(PressOpacity);
    Step(ChangeOpacity, 30);
    EXPECT_TRUE(RunDuringDrag(editor, [](Editor& e) {
                    CancelDrag(e);
                    throw Error("halfway");
                }).Failed());
    EXPECT_FALSE(IsDragging());
    EXPECT_EQ(Steps(), 2);
    EXPECT_EQ(editor.History.RedoCount(), 0);
    Do(Undo);
    EXPECT_EQ(Layer(0).Opacity, 1);
    Do(Redo);
    EXPECT_EQ(Layer(0).Opacity, 0.3F);
}

TEST_F(GiveUp, OneThingAtATime) {
    editor.Tools.InUse = Tool::SelectPolygon;
    Click(4, 4, kShift);
    DragWithoutRelease({{9, 4}, {9, 9}}, kShift);
    EXPECT_TRUE(CancelInput(editor));
    EXPECT_TRUE(editor.PolygonPoints.empty());
    EXPECT_FALSE(IsDragging());
    EXPECT_FALSE(CancelInput(editor));
    EXPECT_EQ(editor.Selection.Bounds(), (RectI{2, 3, 9, 9}));

    // Any other command in mid-drag gives a frame up as well.
    editor.Tools.InUse = Tool::SelectRectangle;
    PressAndMove();
    Do([](Editor&) {});
    EXPECT_EQ(editor.Selection.Bounds(), (RectI{2, 3, 9, 9}));
}

}  // namespace
}  // namespace orbelle::editing
