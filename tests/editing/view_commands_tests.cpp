#include "editing/view_commands.h"

#include "editing/buttons.h"
#include "editing/page_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using ::testing::ElementsAre;

class ViewCommands : public EditingTest {
protected:
    // A page in a scene of 1024 x 768, with the zoom-in animation over.
    void Page(int width, int height) {
        Do(ResizeScene, 1024, 768);
        Do(NewDocument, width, height);
        while (editor.Zoom.IsAnimated)
            Do(TickZoomAnimation);
        SetZoom(1);
    }

    std::vector<double> Series(void (*command)(Editor&), int steps) {
        std::vector<double> series;
        for (int i = 0; i < steps; ++i) {
            Do(command);
            series.push_back(document::RoundToTenth(editor.View.Zoom));
        }
        return series;
    }

    const ButtonState& OriginalSizeButton() {
        return editor.States.MainBar[main_buttons::OriginalSize];
    }
};

TEST_F(ViewCommands, ZoomStepsStayBetweenTheirEndsAndStopAtOne) {
    Do(NewDocument, 512, 512);
    EXPECT_EQ(editor.View.Zoom, 0.2);
    EXPECT_TRUE(editor.Zoom.IsAnimated);
    EXPECT_THAT(Series(TickZoomAnimation, 5), ElementsAre(0.4, 0.6, 0.8, 1, 1));
    EXPECT_FALSE(editor.Zoom.IsAnimated);

    EXPECT_THAT(Series(ZoomIn, 10), ElementsAre(3, 5, 7, 9, 11, 13, 15, 17, 19, 20));
    EXPECT_TRUE(recorder.Last.Scene) << "the last step is seen";
    EXPECT_FALSE(editor.States.IsEnabled(CommandId::ZoomIn));
    EXPECT_THAT(Series(ZoomOut, 16),
                ElementsAre(18, 16, 14, 12, 10, 8, 6, 4, 2, 1, 0.8, 0.6, 0.4, 0.2, 0.2, 0.2));
    EXPECT_TRUE(editor.States.IsEnabled(CommandId::ZoomIn));
    EXPECT_FALSE(editor.States.IsEnabled(CommandId::ZoomOut));
    EXPECT_THAT(Series(ZoomIn, 5), ElementsAre(0.4, 0.6, 0.8, 1, 3));
    EXPECT_TRUE(editor.States.IsEnabled(CommandId::ZoomOut));
    for (const auto& [before, after] : {std::pair{2.4, 1.0}, {1.1, 1.0}, {1.5, 1.3}, {0.3, 0.2}}) {
        SetZoom(before);
        EXPECT_THAT(Series(ZoomOut, 1), ElementsAre(after));
    }
}

TEST_F(ViewCommands, BarsAppearForWhatDoesNotFitAndScrollInTenths) {
    Page(512, 100);
    Do(ZoomIn);  // 1536 wide: 512 beyond the scene
    const document::ScrollBar& bar = editor.View.HorizontalScroll;
    EXPECT_TRUE(bar.Visible);
    EXPECT_EQ(bar.Max, 512);
    EXPECT_EQ(bar.Value, 256);
    EXPECT_FALSE(editor.View.VerticalScroll.Visible);
    for (const auto& [value, offset] : {std::pair{0, 0}, {20, 0}, {9999, -512}}) {
        Do(ScrollHorizontally, value);
        EXPECT_EQ(document::PageOffsetX(editor.Page(), editor.View), offset) << value;
    }
    Do(ZoomOut);
    EXPECT_FALSE(bar.Visible);
    EXPECT_EQ(editor.View.Zoom, 1);

    Do(ScrollHorizontally, 0);
    EXPECT_EQ(document::PageOffsetX(editor.Page(), editor.View), 256) << "it fits";

    const auto bars = [&] { return std::vector{bar.Visible, editor.View.VerticalScroll.Visible}; };
    Do(ResizeScene, 400, 90);
    EXPECT_THAT(bars(), ElementsAre(true, true));
    EXPECT_EQ(bar.Max, 112);
    Do(ScrollHorizontally, 112);
    Do(ResizeScene, 500, 200);
    EXPECT_THAT(bars(), ElementsAre(true, false));
    EXPECT_EQ(bar.Value, 12) << "as far along as before";
    Do(OpenPicture, graphics::Bitmap(100, 600), "");
    EXPECT_THAT(bars(), ElementsAre(false, false)) << "the page begins small";
    while (editor.Zoom.IsAnimated)
        Do(TickZoomAnimation);
    EXPECT_THAT(bars(), ElementsAre(false, true));
    EXPECT_EQ(editor.View.VerticalScroll.Max, 400);
    Do(ZoomIn);
    Do(OriginalSize);
    EXPECT_THAT(bars(), ElementsAre(false, true));
    Do(ResizeScene, 1024, 768);
    EXPECT_THAT(bars(), ElementsAre(false, false));
    Do(OriginalSize);
    EXPECT_THAT(bars(), ElementsAre(false, true)) << "300 x 1800";
    EXPECT_EQ(editor.View.VerticalScroll.Max, 1032);
}

TEST_F(ViewCommands, OriginalSizeGoesBackToTheZoomBeforeOrToAFit) {
    Page(100, 200);
    Do(ZoomIn);
    EXPECT_THAT(Series(OriginalSize, 1), ElementsAre(1));
    EXPECT_TRUE(OriginalSizeButton().Pressed);
    EXPECT_THAT(Series(OriginalSize, 2), ElementsAre(3, 1));
    SetZoom(20);
    EXPECT_FALSE(editor.States.IsEnabled(CommandId::ZoomIn));
    Do(OriginalSize);
    Do(OriginalSize);
    EXPECT_TRUE(editor.States.IsEnabled(CommandId::ZoomIn));
    EXPECT_TRUE(editor.States.IsEnabled(CommandId::ZoomOut));
    Do(ZoomIn);
    EXPECT_FALSE(OriginalSizeButton().Pressed);
    Page(100, 119);
    Do(OriginalSize);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 6);  // of (768 - 4) / 119
    Do(ZoomOut);
    Do(OriginalSize);
    Do(SetPageSize, 417, 119);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 2);  // of (1024 - 4) / 417
    Do(ResizeScene, 204, 768);
    Do(OriginalSize);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 2) << "the zoom before";
    Do(SetPageSize, 500, 119);
    Do(OriginalSize);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 0.4);  // (204 - 4) / 500
    Do(ResizeScene, 1024, 768);
    Page(200, 190);
    Do(OriginalSize);
    Do(OriginalSize);
    EXPECT_EQ(editor.View.Zoom, 4);  // (768 - 4) / 190, the tighter side
    EXPECT_FALSE(editor.Zoom.PageSizeChanged);
}

TEST_F(ViewCommands, TheWheelZoomsAtThePointer) {
    Page(100, 100);
    Do(ResizeScene, 100, 90);
    EXPECT_EQ(editor.Scene.Width(), 100);
    EXPECT_EQ(editor.Scene.Height(), 90);
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

TEST_F(ViewCommands, AnyZoomKeepsTheMiddleOfTheScene) {
    Do(ZoomAboutMiddle, 3.0);
    EXPECT_EQ(editor.View.Zoom, 1) << "no document";
    Page(100, 100);
    Do(ResizeScene, 100, 100);
    Do(OriginalSize);
    Do(ZoomAboutMiddle, 3.0);
    EXPECT_FALSE(OriginalSizeButton().Pressed);
    EXPECT_EQ(editor.View.HorizontalScroll.Value, 100);
    Do(ScrollHorizontally, 40);
    // The middle lies at page pixel (50 + 40) / 3 = 30 across: (50 - 150) / -400 = a quarter.
    Do(ZoomAboutMiddle, 5.0);
    EXPECT_EQ(editor.View.HorizontalScroll.Value, 100);
    EXPECT_EQ(editor.View.VerticalScroll.Value, 200);
    for (const auto& [wanted, zoom] : {std::pair(0.25, 0.25), {40, 20}, {0.05, 0.2}}) {
        Do(ZoomAboutMiddle, wanted);
        EXPECT_EQ(editor.View.Zoom, zoom);
    }
}

TEST_F(ViewCommands, APageOpensAtTheZoomThatTheHostWants) {
    editor.OpeningZoom = 2;
    Do(NewDocument, 16, 16);
    EXPECT_THAT(Series(TickZoomAnimation, 4), ElementsAre(0.7, 1.1, 1.6, 2));
    EXPECT_FALSE(editor.Zoom.IsAnimated);
    editor.AnimatesZoom = false;
    Do(OpenPicture, graphics::Bitmap(64, 64), "");
    EXPECT_FALSE(editor.Zoom.IsAnimated);
    EXPECT_EQ(editor.View.Zoom, 2);
}

TEST_F(ViewCommands, ASmallPageComesAsLargeAsItFitsAndStaysSoUntilTheUserZooms) {
    Do(ResizeScene, 500, 300);
    editor.OpensWhole = true;
    editor.OpeningZoom = 2;
    Do(NewDocument, 64, 64);
    EXPECT_THAT(Series(TickZoomAnimation, 4), ElementsAre(1.2, 2.1, 3.1, 4)) << "of 296 / 64";
    EXPECT_FALSE(editor.Zoom.IsAnimated);
    const auto zoomAt = [&](int width, int height) {
        Do(ResizeScene, width, height);
        return editor.View.Zoom;
    };
    EXPECT_EQ(zoomAt(500, 200), 3) << "of 196 / 64";
    EXPECT_EQ(zoomAt(2000, 2000), 20);
    EXPECT_EQ(zoomAt(100, 68), 1);
    EXPECT_EQ(zoomAt(100, 67), 2) << "the whole page can't be seen: as ever";
    EXPECT_TRUE(editor.View.HorizontalScroll.Visible);
    EXPECT_EQ(zoomAt(500, 300), 4);
    EXPECT_FALSE(editor.View.HorizontalScroll.Visible);
    Do(SetPageSize, 200, 64);
    EXPECT_EQ(editor.View.Zoom, 2) << "of 496 / 200";
    Do(Undo);
    EXPECT_EQ(editor.View.Zoom, 4);
    Do(PressPageSize);
    Step(ResizeScene, 300, 200);
    EXPECT_EQ(editor.View.Zoom, 4) << "nothing moves below a drag";
    Step(ReleasePageSize);
    Do(ZoomOut);
    EXPECT_EQ(zoomAt(500, 300), 2) << "the user's";

    Do(NewDocument, 256, 256);
    EXPECT_EQ(zoomAt(1100, 1000), 0.2) << "still coming";
    EXPECT_THAT(Series(TickZoomAnimation, 4), ElementsAre(0.9, 1.6, 2.3, 3));
    for (const auto& [command, zoom] : {std::pair(&ZoomIn, 5), {&ZoomOut, 1}, {&OriginalSize, 1}}) {
        Do(NewDocument, 256, 256);
        Do(command);
        Do(TickZoomAnimation);
        EXPECT_EQ(editor.View.Zoom, zoom) << "as if it had come";
    }
    Do(NewDocument, 300, 300);
    Do(TickZoomAnimation);
    EXPECT_EQ(zoomAt(200, 100), 0.9) << "less than 2 still";
    Do(TickZoomAnimation);
    Do(TickZoomAnimation);
    Do(ScrollVertically, 0);
    EXPECT_EQ(zoomAt(2000, 2000), 1.8) << "scrolled";
}

TEST_F(ViewCommands, FitWholeTakesTheLargestWholeStepThatShowsThePage) {
    const struct {
        int Width, Height;
        double Zoom;
    } cases[] = {{16, 16, 20}, {64, 64, 11}, {250, 64, 4}, {256, 256, 2}, {512, 512, 1}};
    for (const auto& [width, height, zoom] : cases) {
        Page(width, height);
        Do(FitWhole);
        EXPECT_EQ(editor.View.Zoom, zoom) << width;
        EXPECT_TRUE(recorder.Last.Scene);
    }
    // Below 1 the steps are those of Zoom Out.
    EXPECT_EQ(WholeFitZoom(200, 150, editor.Page()), 0.2);
    EXPECT_EQ(WholeFitZoom(414, 414, editor.Page()), 0.8);
    EXPECT_EQ(WholeFitZoom(516, 516, editor.Page()), 1);
    Do(OriginalSize);
    EXPECT_TRUE(OriginalSizeButton().Pressed);
    Do(FitWhole);
    EXPECT_FALSE(OriginalSizeButton().Pressed);
}

}  // namespace
}  // namespace orbelle::editing
