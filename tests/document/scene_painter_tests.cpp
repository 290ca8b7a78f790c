#include "document/scene_painter.h"

#include <gtest/gtest.h>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::RectI;
using testing::FilledPicture;

constexpr Argb kShadow = 0xFF808080;

struct Shown {
    Page page;
    Argb background = 0;
    View view;
    Bitmap canvas;
    Bitmap scene;
    document::Selection selection;

    Shown(int width, int height, double zoom) : canvas(width, height) {
        page.Width = width;
        page.Height = height;
        view.SceneWidth = 100;
        view.SceneHeight = 60;
        view.Zoom = zoom;
        view.ViewActive = true;
    }

    Argb At(int x, int y) {
        DrawScene(scene, canvas, background, view, selection);
        return *scene.GetPixel(x, y);
    }
};

TEST(View, ScrollRatiosAreTenths) {
    for (const auto& [value, max, ratio] : std::vector<std::tuple<int, int, double>>{
             {3, 10, 0.3}, {3, 7, 0.4}, {1, 4, 0.3}, {7, 20, 0.4}, {5, 10, 0.5}, {1, 0, 0}})
        EXPECT_DOUBLE_EQ(ScrollRatio({value, max}), ratio) << value << " of " << max;
    EXPECT_DOUBLE_EQ(RoundToTenth(-0.25), -0.3);
}

TEST(View, ALargePageMovesLeftAsTheBarMovesRight) {
    Page page;
    page.Width = 300;
    page.Height = 20;
    View view;
    view.SceneWidth = 100;
    view.SceneHeight = 60;
    view.Zoom = 1;
    view.HorizontalScroll.Value = 2;
    EXPECT_DOUBLE_EQ(PageOffsetX(page, view), -40);
    EXPECT_DOUBLE_EQ(PageOffsetY(page, view), 20);
}

TEST(DrawScene, NothingHappensWithoutADocument) {
    Shown shown(4, 2, 1);
    shown.view.ViewActive = false;
    DrawScene(shown.scene, shown.canvas, shown.background, shown.view, shown.selection);
    EXPECT_TRUE(shown.scene.IsEmpty());
}

// The page of 40 x 20 lies at (30, 20) of the scene.
TEST(DrawScene, ShowsCheckerShadowAndFrameAroundATransparentPage) {
    Shown shown(40, 20, 1);
    EXPECT_EQ(shown.At(29, 30), kSceneColor);
    EXPECT_EQ(shown.At(32, 22), 0xFFF0F0F0);  // first cell, beyond the frame's line
    EXPECT_EQ(shown.At(36, 22), 0xFFFFFFFF);
    EXPECT_EQ(shown.At(32, 26), 0xFFFFFFFF);
    EXPECT_EQ(shown.At(36, 26), 0xFFF0F0F0);
    EXPECT_EQ(shown.At(70, 30), kShadow);
    EXPECT_EQ(shown.At(89, 30), kShadow);
    EXPECT_EQ(shown.At(90, 30), kSceneColor);
    EXPECT_EQ(shown.At(31, 40), kShadow);
    EXPECT_EQ(shown.At(89, 59), kShadow);
    EXPECT_EQ(shown.At(80, 19), kSceneColor);
    // Black at alpha 200 over the checker, (30, 20) to (71, 41).
    EXPECT_EQ(shown.At(30, 20), 0xFF343434);
    EXPECT_EQ(shown.At(71, 30), 0xFF1C1C1C);
    EXPECT_EQ(shown.At(72, 30), kShadow);
    EXPECT_EQ(shown.At(50, 41), 0xFF1C1C1C);
}

// Cells are counted from the page's corner, also where that lies beyond the scene: at (-8, -8).
TEST(DrawScene, TheCheckerScrollsWithThePage) {
    Shown shown(116, 76, 1);
    EXPECT_EQ(shown.At(0, 0), 0xFFF0F0F0);
    EXPECT_EQ(shown.At(4, 0), 0xFFFFFFFF);
    shown.view.VerticalScroll.Value = shown.view.HorizontalScroll.Value = 10;  // to (-16, -16)
    EXPECT_EQ(shown.At(0, 0), 0xFFF0F0F0);
    shown.view.VerticalScroll.Value = 7;  // 70 % of -16, cut to -11
    EXPECT_EQ(shown.At(0, 0), 0xFFFFFFFF);
}

TEST(DrawScene, ThePictureCoversTheFrameAndShowsTheBackgroundThrough) {
    Shown shown(40, 20, 1);
    shown.background = 0xFF0000FF;
    shown.canvas = FilledPicture(40, 20, 0xFF00FF00);
    shown.canvas.SetPixel(5, 5, 0);
    EXPECT_EQ(shown.At(30, 20), 0xFF00FF00);
    EXPECT_EQ(shown.At(35, 25), 0xFF0000FF);
    EXPECT_EQ(shown.At(69, 39), 0xFF00FF00);
    EXPECT_EQ(shown.At(70, 39), kShadow);
}

// 10 x 5 at zoom 3 is 30 x 15 at (35, 22.5); half of the zoom, 1.5, is 2 as a whole number.
TEST(DrawScene, ZoomedPixelsAreSquaresAndTheBackgroundLiesHalfAPixelOff) {
    Shown shown(10, 5, 3);
    shown.view.SceneHeight = 59;  // the page at (35, 22)
    shown.background = 0xFF0000FF;
    shown.canvas.SetPixel(1, 1, 0xFF00FF00);
    EXPECT_EQ(shown.At(38, 25), 0xFF00FF00);
    EXPECT_EQ(shown.At(40, 27), 0xFF00FF00);
    EXPECT_EQ(shown.At(41, 27), 0xFF0000FF);
    EXPECT_EQ(shown.At(36, 30), kSceneColor);  // left of the shifted background
    EXPECT_EQ(shown.At(37, 30), 0xFF0000FF);
    EXPECT_EQ(shown.At(65, 30), kShadow);
    EXPECT_EQ(shown.At(84, 30), kShadow);
    EXPECT_EQ(shown.At(85, 30), kSceneColor);
}

// The page less the selection is darkened by black at alpha 100: 255 x 155 / 255.
TEST(DrawScene, TheSelectionStaysBright) {
    Shown shown(40, 20, 1);
    shown.canvas = FilledPicture(40, 20, 0xFFFFFFFF);
    shown.selection.Start();
    shown.selection.AddFrame(20, 10, 10, 5, document::FrameShape::Rectangle);
    EXPECT_EQ(shown.At(30, 20), 0xFF9B9B9B);
    EXPECT_EQ(shown.At(40, 25), 0xFFFFFFFF);
    EXPECT_EQ(shown.At(49, 29), 0xFFFFFFFF);
    EXPECT_EQ(shown.At(50, 29), 0xFF9B9B9B);
}

TEST(DrawScene, StaysInsideTheSceneAtEveryZoom) {
    Shown shown(512, 300, 1);
    for (const double zoom : {-2.0, 0.0, 0.2, 20.0}) {
        shown.view.Zoom = zoom;
        for (const int value : {0, 3, 10}) {
            shown.view.HorizontalScroll.Value = shown.view.VerticalScroll.Value = value;
            DrawScene(shown.scene, shown.canvas, shown.background, shown.view, shown.selection);
        }
    }
    EXPECT_EQ(shown.scene.Width(), 100);
}

TEST(ObjectFrame, LiesTwoPixelsOutsideTheSelectedVisibleLayer) {
    Shown shown(40, 20, 1);
    EXPECT_FALSE(ObjectFrame(shown.page, shown.view));
    IconLayer& layer = shown.page.Layers.emplace_back();
    layer.Rect = {4, -2, 10, 6.5F};
    shown.page.SelectedLayer = 0;
    EXPECT_EQ(ObjectFrame(shown.page, shown.view), (RectI{32, 16, 14, 10}));
    layer.Visible = false;
    EXPECT_FALSE(ObjectFrame(shown.page, shown.view));
}

}  // namespace
}  // namespace orbelle::document
