#include "editing/view_commands.h"

#include "editing/buttons.h"
#include "editing/page_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using ::testing::ElementsAre;

class ViewCommands : public EditingTest {
protected:
    // A page in a scene of 1024 x 768, with the zoom-in animation over.
    void Page(int width, int height) {
        editor.View.SceneWidth = 1024;
        editor.View.SceneHeight = 768;
        Do(NewDocument, width, height);
        while (editor.Zoom.IsAnimated)
            Do(TickZoomAnimation);
    }

    std::vector<double> Series(void (*command)(Editor&), int steps) {
        std::vector<double> series;
        for (int i = 0; i < steps; ++i) {
            Do(command);
            series.push_back(document::RoundToTenth(editor.View.Zoom));
        }
        return series;
    }

    ButtonState MainButton(int number) {
        return editor.States.MainBar[static_cast<std::size_t>(number)];
    }
};

TEST_F(ViewCommands, TheAnimationGrowsThePageInFiveTicks) {
    Do(NewDocument, 10, 10);
    EXPECT_EQ(editor.View.Zoom, 0);
    EXPECT_TRUE(editor.Zoom.IsAnimated);
    EXPECT_THAT(Series(TickZoomAnimation, 6), ElementsAre(0.2, 0.4, 0.6, 0.8, 1, 1));
    EXPECT_FALSE(editor.Zoom.IsAnimated);
}

TEST_F(ViewCommands, ZoomStepsUpAndDownAreDifferentSeries) {
    Page(10, 10);
    EXPECT_THAT(Series(ZoomIn, 11), ElementsAre(3, 5, 7, 9, 11, 13, 15, 17, 19, 20, 20));
    EXPECT_FALSE(MainButton(main_buttons::ZoomIn).Enabled);
    EXPECT_THAT(Series(ZoomOut, 12), ElementsAre(18, 16, 14, 12, 10, 8, 6, 4, 2, 0, -2, -4));
    EXPECT_TRUE(MainButton(main_buttons::ZoomIn).Enabled);
}

TEST_F(ViewCommands, ZoomOutStopsAtOneFifth) {
    Page(10, 10);
    EXPECT_THAT(Series(ZoomOut, 5), ElementsAre(0.8, 0.6, 0.4, 0.2, 0.2));
    EXPECT_FALSE(MainButton(main_buttons::ZoomOut).Enabled);
    EXPECT_THAT(Series(ZoomIn, 5), ElementsAre(0.4, 0.6, 0.8, 1, 3));
    EXPECT_TRUE(MainButton(main_buttons::ZoomOut).Enabled);
}

TEST_F(ViewCommands, BarsAppearForWhatDoesNotFitAndGoWhenZoomingOut) {
    Page(400, 100);
    Do(ZoomIn);  // 1200 x 300
    EXPECT_TRUE(editor.View.HorizontalScroll.Visible);
    EXPECT_EQ(editor.View.HorizontalScroll.Max, 176);
    EXPECT_EQ(editor.View.HorizontalScroll.Value, 88);
    EXPECT_FALSE(editor.View.VerticalScroll.Visible);
    Do(ZoomOut);
    EXPECT_FALSE(editor.View.HorizontalScroll.Visible);
    EXPECT_EQ(editor.View.Zoom, 1);
}

TEST_F(ViewCommands, ScrollingMovesThePageInTenths) {
    Page(512, 100);
    Do(ZoomIn);  // 1536 wide: 512 beyond the scene
    const auto offset = [&] { return document::PageOffsetX(editor.Page(), editor.View); };
    Do(ScrollHorizontally, 0);
    EXPECT_DOUBLE_EQ(offset(), 0);
    Do(ScrollHorizontally, 20);
    EXPECT_DOUBLE_EQ(offset(), 0);
    Do(ScrollHorizontally, 9999);
    EXPECT_DOUBLE_EQ(offset(), -512);
}

TEST_F(ViewCommands, OriginalSizeTogglesBetweenOneAndTheZoomBefore) {
    Page(100, 100);
    Do(ZoomIn);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 1);
    EXPECT_TRUE(MainButton(main_buttons::OriginalSize).Pressed);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 3);
    EXPECT_FALSE(MainButton(main_buttons::OriginalSize).Pressed);
    Do(OriginalSize);
    Do(ZoomIn);
    EXPECT_FALSE(MainButton(main_buttons::OriginalSize).Pressed);
}

TEST_F(ViewCommands, OriginalSizeGoesBackToAFitWhenTheZoomBeforeWasOne) {
    Page(100, 200);
    Do(OriginalSize);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 3.8);  // (768 - 4) / 200
    Do(ZoomOut);
    Do(OriginalSize);
    Do(ChangePageWidth, 400);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 2.6);  // (1024 - 4) / 400
    EXPECT_FALSE(editor.Zoom.PageSizeChanged);
}

TEST_F(ViewCommands, TheSceneFollowsTheWindow) {
    Page(10, 10);
    Do(ResizeScene, 50, 40);
    EXPECT_EQ(editor.Scene.Width(), 50);
    EXPECT_EQ(editor.Scene.Height(), 40);
}

TEST_F(ViewCommands, TheWheelZoomsAtThePointer) {
    Page(100, 100);
    Do(ResizeScene, 100, 100);
    Do(ZoomInAt, 95.0F, 5.0F);
    EXPECT_EQ(editor.View.Zoom, 3);
    // 95 lies at page pixel 95, so (95 - 285) / -200 = 0.95 of the way, in tenths.
    EXPECT_EQ(editor.View.HorizontalScroll.Value, 190);
    EXPECT_EQ(editor.View.VerticalScroll.Value, 10);
    Do(ZoomOutAt, 95.0F, 5.0F);
    EXPECT_EQ(editor.View.Zoom, 1);
    EXPECT_FALSE(editor.View.HorizontalScroll.Visible);
}

}  // namespace
}  // namespace orbelle::editing
