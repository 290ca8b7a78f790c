#include "editing/view_commands.h"

#include "editing/page_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

class ViewCommands : public EditingTest {
protected:
    // A page in a scene of 1024 x 768, with the zoom-in animation over.
    void Page(int width, int height) {
        NewPage(width, height);
        while (!TickZoomAnimation(editor)) {
        }
    }

    std::vector<double> Series(void (*command)(Editor&), int steps) {
        std::vector<double> series;
        for (int i = 0; i < steps; ++i) {
            command(editor);
            series.push_back(document::RoundToTenth(editor.View.Zoom));
        }
        return series;
    }

    const Button& MainButton(int number) {
        return editor.Controls.MainBar[static_cast<std::size_t>(number)];
    }
};

TEST_F(ViewCommands, TheAnimationGrowsThePageInFiveTicks) {
    NewPage(10, 10);
    EXPECT_EQ(editor.View.Zoom, 0);
    int ticks = 1;
    while (!TickZoomAnimation(editor))
        ++ticks;
    EXPECT_EQ(ticks, 5);
    EXPECT_EQ(editor.View.Zoom, 1);
    EXPECT_TRUE(TickZoomAnimation(editor));
    EXPECT_EQ(editor.View.Zoom, 1);
}

TEST_F(ViewCommands, ZoomStepsUpAndDownAreDifferentSeries) {
    using ::testing::ElementsAre;
    Page(10, 10);
    EXPECT_THAT(Series(ZoomIn, 11), ElementsAre(3, 5, 7, 9, 11, 13, 15, 17, 19, 20, 20));
    EXPECT_FALSE(MainButton(main_buttons::ZoomIn).Enabled);
    EXPECT_THAT(Series(ZoomOut, 12), ElementsAre(18, 16, 14, 12, 10, 8, 6, 4, 2, 0, -2, -4));
    EXPECT_TRUE(MainButton(main_buttons::ZoomIn).Enabled);
}

TEST_F(ViewCommands, ZoomOutStopsAtOneFifth) {
    using ::testing::ElementsAre;
    Page(10, 10);
    EXPECT_THAT(Series(ZoomOut, 5), ElementsAre(0.8, 0.6, 0.4, 0.2, 0.2));
    EXPECT_FALSE(MainButton(main_buttons::ZoomOut).Enabled);
    EXPECT_THAT(Series(ZoomIn, 5), ElementsAre(0.4, 0.6, 0.8, 1, 3));
    EXPECT_TRUE(MainButton(main_buttons::ZoomOut).Enabled);
}

TEST_F(ViewCommands, BarsAppearForWhatDoesNotFitAndGoWhenZoomingOut) {
    Page(400, 100);
    ZoomIn(editor);  // 1200 x 300
    EXPECT_TRUE(editor.View.HorizontalScroll.Visible);
    EXPECT_EQ(editor.View.HorizontalScroll.Max, 176);
    EXPECT_EQ(editor.View.HorizontalScroll.Value, 88);
    EXPECT_FALSE(editor.View.VerticalScroll.Visible);
    ZoomOut(editor);
    EXPECT_FALSE(editor.View.HorizontalScroll.Visible);
    EXPECT_EQ(editor.View.Zoom, 1);
}

TEST_F(ViewCommands, ScrollingMovesThePageInTenths) {
    Page(512, 100);
    ZoomIn(editor);  // 1536 wide: 512 beyond the scene
    const auto offset = [&] { return document::PageOffsetX(editor.Document, editor.View); };
    ScrollHorizontally(editor, 0);
    EXPECT_DOUBLE_EQ(offset(), 0);
    ScrollHorizontally(editor, 20);
    EXPECT_DOUBLE_EQ(offset(), 0);
    ScrollHorizontally(editor, 9999);
    EXPECT_DOUBLE_EQ(offset(), -512);
}

TEST_F(ViewCommands, OriginalSizeTogglesBetweenOneAndTheZoomBefore) {
    Page(100, 100);
    ZoomIn(editor);
    OriginalSize(editor);
    EXPECT_EQ(editor.View.Zoom, 1);
    EXPECT_TRUE(MainButton(main_buttons::OriginalSize).Pressed);
    OriginalSize(editor);
    EXPECT_EQ(editor.View.Zoom, 3);
    EXPECT_FALSE(MainButton(main_buttons::OriginalSize).Pressed);
    OriginalSize(editor);
    ZoomIn(editor);
    EXPECT_FALSE(MainButton(main_buttons::OriginalSize).Pressed);
}

TEST_F(ViewCommands, OriginalSizeGoesBackToAFitWhenTheZoomBeforeWasOne) {
    Page(100, 200);
    OriginalSize(editor);
    OriginalSize(editor);
    EXPECT_EQ(editor.View.Zoom, 3.8);  // (768 - 4) / 200
    ZoomOut(editor);
    OriginalSize(editor);
    ChangePageWidth(editor, 400);
    OriginalSize(editor);
    EXPECT_EQ(editor.View.Zoom, 2.6);  // (1024 - 4) / 400
    EXPECT_FALSE(editor.Controls.PageSizeChanged);
}

TEST_F(ViewCommands, TheSceneFollowsTheWindow) {
    Page(10, 10);
    ResizeScene(editor, 50, 40);
    EXPECT_EQ(editor.Scene.Width(), 50);
    EXPECT_EQ(editor.Scene.Height(), 40);
}

}  // namespace
}  // namespace orbelle::editing
