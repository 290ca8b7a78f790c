#include "editing/tip_texts.h"

#include "editing/tips.h"
#include "editing/tool_palette.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class TipTexts : public EditingTest {
protected:
    TipChoice After(Tool tool) {
        editor.CurrentTool = tool;
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
        ASSERT_TRUE(choice.CtlTips1);
        EXPECT_EQ(choice.CtlTips1->Text, text);
        EXPECT_EQ(choice.CtlTips1->Place, place);
        EXPECT_TRUE(choice.Tips1Visible);
        EXPECT_FALSE(choice.Tips2Visible);
    }
    for (const int silent : {5, 6, 13}) {
        const TipChoice choice = ChooseTips(editor, silent, false, 1);
        EXPECT_FALSE(choice.CtlTips1);
        EXPECT_FALSE(choice.Tips1Visible);
    }
}

TEST_F(TipTexts, TheMoveToolPicksOneOfTwoAndNeedsALayer) {
    EXPECT_FALSE(ChooseTips(editor, tips::MoveTool, false, 1).Tips1Visible);
    NewPage(8, 8);
    const TipChoice first = ChooseTips(editor, tips::MoveTool, false, 1);
    EXPECT_TRUE(first.Tips1Visible);
    EXPECT_THAT(first.CtlTips1->Text, StartsWith("Click right-click"));
    EXPECT_FALSE(first.CtlTips2);
    const TipChoice second = ChooseTips(editor, tips::MoveTool, true, 2);
    EXPECT_THAT(second.CtlTips1->Text, HasSubstr("direction key"));
    ASSERT_TRUE(second.CtlTips2);
    EXPECT_EQ(second.CtlTips2->Place, TipPlace::AddLayerButton);
    EXPECT_EQ(second.Tips2Visible, true);
}

TEST_F(TipTexts, ToolsHaveTwoBalloons) {
    EXPECT_FALSE(After(Tool::Line).Tips1Visible);
    NewPage(8, 8);
    EXPECT_THAT(After(Tool::FilledEllipse).CtlTips1->Text, HasSubstr("draw a circle."));
    EXPECT_EQ(After(Tool::Rectangle).CtlTips2->Text,
              "Set the rectangle color, width and opacity. Double-click to set background "
              "color/foreground color.");
    EXPECT_EQ(After(Tool::Pencil).CtlTips2->Place, TipPlace::ColorWells);
    EXPECT_EQ(After(Tool::BrushEraser).CtlTips2->Place, TipPlace::BrushOptions);
    for (const Tool tool : {Tool::PencilEraser, Tool::SelectRectangle})
        EXPECT_EQ(After(tool).Tips2Visible, false);
    // The texts stay as they were.
    for (const Tool tool : {Tool::SelectEllipse, Tool::SelectPolygon, Tool::ColorPick}) {
        EXPECT_FALSE(After(tool).CtlTips1);
        EXPECT_FALSE(After(tool).CtlTips2);
        EXPECT_EQ(After(tool).Tips2Visible, true);
    }
}

TEST_F(TipTexts, TheWheelZoomsAtThePointer) {
    editor.View.SceneWidth = editor.View.SceneHeight = 100;
    NewPage(100, 100);
    editor.View.Zoom = 1;
    ZoomInAt(editor, 95, 5);
    EXPECT_EQ(editor.View.Zoom, 3);
    // 95 lies at page pixel 95, so (95 - 285) / -200 = 0.95 of the way, in tenths.
    EXPECT_EQ(editor.View.Hs1.Value, 190);
    EXPECT_EQ(editor.View.Vs1.Value, 10);
    ZoomOutAt(editor, 95, 5);
    EXPECT_EQ(editor.View.Zoom, 1);
    EXPECT_FALSE(editor.View.Hs1.Visible);
}

}  // namespace
}  // namespace orbelle::editing
