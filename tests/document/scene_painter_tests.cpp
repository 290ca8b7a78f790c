#include "document/scene_painter.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::RectI;
using testing::FilledPicture;

constexpr Argb kShadow = 0xFF808080, kDark = 0xFFF0F0F0, kLight = 0xFFFFFFFF;
constexpr Argb kBlue = 0xFF0000FF, kGreen = 0xFF00FF00;

// A blank page in the middle of a scene of 100 x 60.
struct Shown {
    Page page;
    Argb background = 0;
    View view;
    Bitmap canvas;
    Bitmap scene;

    Shown(int width, int height, double zoom) : canvas(width, height) {
        page.Width = width;
        page.Height = height;
        view.SceneWidth = 100;
        view.SceneHeight = 60;
        view.Zoom = zoom;
        view.ViewActive = true;
    }

    void Draw() { DrawScene(scene, canvas, background, view, {}); }

    void ExpectPixels(const std::vector<std::tuple<int, int, Argb>>& pixels) {
        Draw();
        for (const auto& [x, y, color] : pixels)
            EXPECT_EQ(scene.GetPixel(x, y), color) << x << ", " << y;
    }
};

TEST(View, ScrollRatiosAreTenths) {
    for (const auto& [value, max, ratio] : std::vector<std::tuple<int, int, double>>{
             {3, 10, 0.3}, {3, 7, 0.4}, {1, 4, 0.3}, {7, 20, 0.4}, {5, 10, 0.5}, {1, 0, 0}})
        EXPECT_DOUBLE_EQ(ScrollRatio({value, max}), ratio) << value << " of " << max;
    EXPECT_DOUBLE_EQ(RoundToTenth(-0.25), -0.3);

    Shown large(300, 20, 1);
    large.view.HorizontalScroll.Value = 2;
    EXPECT_EQ(PageOffsetX(large.page, large.view), -40);
    EXPECT_EQ(PageOffsetY(large.page, large.view), 20);
    large.view.HorizontalScroll.Value = 7;
    large.page.Width = 103;
    EXPECT_EQ(PageOffsetX(large.page, large.view), -2);  // 0.7 x -3, towards 0
    large.view.Zoom = 0.7;
    EXPECT_EQ(PageOffsetX(large.page, large.view), 19);  // 0.7 x 27.9
}

// The page of 40 x 20 lies at (30, 20) of the scene.
TEST(DrawScene, ShowsCheckerShadowAndFrameAroundThePage) {
    Shown shown(40, 20, 1);
    shown.ExpectPixels({{28, 30, kSceneColor}, {90, 30, kSceneColor}, {80, 19, kSceneColor}});
    shown.ExpectPixels({{32, 22, kDark}, {36, 22, kLight}, {32, 26, kLight}, {36, 26, kDark}});
    shown.ExpectPixels(
        {{72, 30, kShadow}, {89, 30, kShadow}, {31, 42, kShadow}, {89, 59, kShadow}});
    // Black at alpha 200 over the scene and the shadow, just outside (30, 20) to (69, 39).
    shown.ExpectPixels({{29, 19, 0xFF181818}, {29, 39, 0xFF181818}, {69, 19, 0xFF181818}});
    shown.ExpectPixels({{70, 30, 0xFF1C1C1C}, {50, 40, 0xFF1C1C1C}, {70, 40, 0xFF1C1C1C}});
    shown.ExpectPixels({{28, 30, kSceneColor}, {71, 30, kShadow}, {50, 41, kShadow}});
    shown.ExpectPixels({{30, 20, kDark}, {69, 39, kDark}, {69, 34, kLight}});
    shown.background = kBlue;
    shown.canvas = FilledPicture(40, 20, kGreen);
    shown.canvas.SetPixel(5, 5, 0);
    shown.ExpectPixels({{30, 20, kGreen}, {35, 25, kBlue}, {69, 39, kGreen}, {71, 39, kShadow}});
}

// Cells are counted from the page's corner, also where that lies beyond the scene.
TEST(DrawScene, TheCheckerScrollsWithThePage) {
    Shown shown(116, 76, 1);
    shown.ExpectPixels({{0, 0, kDark}, {4, 0, kLight}});  // from (-8, -8)
    shown.view.VerticalScroll.Value = shown.view.HorizontalScroll.Value = 10;
    shown.ExpectPixels({{0, 0, kDark}});  // from (-16, -16)
    shown.view.VerticalScroll.Value = 7;
    shown.ExpectPixels({{0, 0, kLight}});  // 70 % of -16, cut to -11
}

// 9 x 5 at zoom 3 is 27 x 15; its corner, at 36.5 and 22 of the way, is (36, 22).
TEST(DrawScene, BackgroundPictureAndOutlineOfAZoomedPageHaveOneCorner) {
    Shown shown(9, 5, 3);
    shown.view.SceneHeight = 59;
    shown.background = kBlue;
    shown.canvas.SetPixel(1, 1, kGreen);
    shown.ExpectPixels({{39, 25, kGreen}, {41, 27, kGreen}, {42, 27, kBlue}, {38, 25, kBlue}});
    shown.ExpectPixels({{36, 22, kBlue}, {62, 22, kBlue}, {36, 36, kBlue}, {62, 36, kBlue}});
    shown.ExpectPixels({{35, 30, 0xFF181818}, {63, 30, 0xFF1C1C1C}, {34, 30, kSceneColor}});
    shown.ExpectPixels({{40, 21, 0xFF181818}, {40, 37, 0xFF1C1C1C}, {40, 20, kSceneColor}});
    shown.ExpectPixels({{64, 22, kShadow}, {82, 56, kShadow}, {83, 30, kSceneColor}});
}

TEST(DrawScene, StaysInsideTheSceneAtEveryZoom) {
    Shown shown(512, 300, 1);
    shown.view.ViewActive = false;
    shown.Draw();
    EXPECT_TRUE(shown.scene.IsEmpty()) << "there is no document";
    shown.view.ViewActive = true;
    for (const double zoom : {-2.0, 0.0, 0.2, 20.0}) {
        shown.view.Zoom = zoom;
        for (const int value : {0, 3, 10}) {
            shown.view.HorizontalScroll.Value = shown.view.VerticalScroll.Value = value;
            shown.Draw();
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
