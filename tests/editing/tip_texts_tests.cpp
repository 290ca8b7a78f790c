#include "editing/tip_texts.h"

#include "editing/tips.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class TipTexts : public EditingTest {
protected:
    TipChoice After(Tool tool) {
        editor.Tools.InUse = tool;
        return ChooseTips(editor, tips::OtherTool, false, 1);
    }
};

TEST_F(TipTexts, FixedTipsTouchOnlyTheFirstBalloon) {
    const TipChoice choice = ChooseTips(editor, 11, true, 1);
    ASSERT_TRUE(choice.FirstBalloon);
    EXPECT_EQ(choice.FirstBalloon->Text, "Here you can change the opacity of the Vista style.");
    EXPECT_EQ(choice.FirstBalloon->Place, TipPlace::OpacitySlider);
    EXPECT_TRUE(choice.FirstVisible);
    EXPECT_FALSE(choice.SecondVisible);
    EXPECT_FALSE(ChooseTips(editor, 5, false, 1).FirstBalloon);
    EXPECT_FALSE(ChooseTips(editor, 5, false, 1).FirstVisible);
}

TEST_F(TipTexts, TheMoveToolPicksOneOfTwoAndNeedsALayer) {
    EXPECT_FALSE(ChooseTips(editor, tips::MoveTool, false, 1).FirstVisible);
    Do(NewDocument, 8, 8);
    const TipChoice first = ChooseTips(editor, tips::MoveTool, false, 1);
    EXPECT_TRUE(first.FirstVisible);
    EXPECT_THAT(first.FirstBalloon->Text, StartsWith("Click right-click"));
    EXPECT_FALSE(first.SecondBalloon);
    const TipChoice second = ChooseTips(editor, tips::MoveTool, true, 2);
    EXPECT_THAT(second.FirstBalloon->Text, HasSubstr("direction key"));
    ASSERT_TRUE(second.SecondBalloon);
    EXPECT_EQ(second.SecondBalloon->Place, TipPlace::AddLayerButton);
    EXPECT_EQ(second.SecondVisible, true);
}

TEST_F(TipTexts, ToolsHaveTwoBalloons) {
    EXPECT_FALSE(After(Tool::Line).FirstVisible);
    Do(NewDocument, 8, 8);
    EXPECT_THAT(After(Tool::FilledEllipse).FirstBalloon->Text, HasSubstr("draw a circle."));
    EXPECT_EQ(After(Tool::Pencil).SecondBalloon->Place, TipPlace::ColorWells);
    EXPECT_EQ(After(Tool::BrushEraser).SecondBalloon->Place, TipPlace::BrushOptions);
    for (const Tool tool : {Tool::PencilEraser, Tool::SelectRectangle})
        EXPECT_EQ(After(tool).SecondVisible, false);
    // The texts stay as they were.
    for (const Tool tool : {Tool::SelectEllipse, Tool::SelectPolygon, Tool::ColorPick}) {
        EXPECT_FALSE(After(tool).FirstBalloon);
        EXPECT_FALSE(After(tool).SecondBalloon);
        EXPECT_EQ(After(tool).SecondVisible, true);
    }
}

}  // namespace
}  // namespace orbelle::editing
