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
    const struct {
        int Tip;
        const char* Text;
        TipPlace Place;
    } cases[] = {
        {0,
         "Click on the \"New\" button or \"Open\" Button to create a new icon or open an existing "
         "file.",
         TipPlace::NewAndOpenButtons},
        {1, "Click on the \"Import\" button, you can import one or more images.",
         TipPlace::ImportButton},
        {9, "Here you can change the opacity of the Crystal.", TipPlace::OpacitySlider},
        {11, "Here you can change the opacity of the Vista style.", TipPlace::OpacitySlider},
        {15, "To move the icon, you must to choose an icon object.", TipPlace::PageCorner},
    };
    for (const auto& [tip, text, place] : cases) {
        SCOPED_TRACE(tip);
        const TipChoice choice = ChooseTips(editor, tip, true, 1);
        ASSERT_TRUE(choice.FirstBalloon);
        EXPECT_EQ(choice.FirstBalloon->Text, text);
        EXPECT_EQ(choice.FirstBalloon->Place, place);
        EXPECT_TRUE(choice.FirstVisible);
        EXPECT_FALSE(choice.SecondVisible);
    }
    for (const int silent : {5, 6, 13}) {
        const TipChoice choice = ChooseTips(editor, silent, false, 1);
        EXPECT_FALSE(choice.FirstBalloon);
        EXPECT_FALSE(choice.FirstVisible);
    }
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
    EXPECT_EQ(After(Tool::Rectangle).SecondBalloon->Text,
              "Set the rectangle color, width and opacity. Double-click to set background "
              "color/foreground color.");
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
