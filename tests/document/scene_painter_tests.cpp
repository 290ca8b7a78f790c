#include "document/scene_painter.h"

#include <gmock/gmock.h>

#include <tuple>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::RectI;
using testing::FilledPicture;

constexpr Argb kDark = 0xFFF0F0F0, kLight = 0xFFFFFFFF;
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
    // Black at 35 %, fading over 10 pixels, 3 further down; none before the page's left and top.
    shown.ExpectPixels({{75, 36, 0xFF5E5E5E}, {75, 30, 0xFF606060}, {50, 45, 0xFF4E4E4E}});
    shown.ExpectPixels({{31, 45, 0xFF6C6C6C}, {50, 42, 0xFF484848}, {29, 45, kSceneColor}});
    shown.ExpectPixels({{75, 22, kSceneColor}, {80, 30, kSceneColor}, {50, 53, kSceneColor}});
    // Black at alpha 200 over the scene and the shadow, just outside (30, 20) to (69, 39).
    shown.ExpectPixels({{29, 19, 0xFF181818}, {29, 39, 0xFF181818}, {69, 19, 0xFF181818}});
    shown.ExpectPixels({{70, 30, 0xFF111111}, {50, 40, 0xFF101010}, {70, 40, 0xFF101010}});
    shown.ExpectPixels({{30, 20, kDark}, {69, 39, kDark}, {69, 34, kLight}});
    shown.background = kBlue;
    shown.canvas = FilledPicture(40, 20, kGreen);
    shown.canvas.SetPixel(5, 5, 0);
    shown.ExpectPixels({{30, 20, kGreen}, {35, 25, kBlue}, {69, 39, kGreen}});
}

TEST(DrawScene, ThePageMayReachBeyondTheScene) {
    Shown shown(400, 20, 1);
    shown.background = kBlue;
    shown.ExpectPixels({{0, 36, kBlue}, {99, 36, kBlue}, {0, 19, 0xFF181818}, {0, 41, 0xFF484848}});
    shown.ExpectPixels({{0, 44, 0xFF4A4A4A}, {99, 44, 0xFF4A4A4A}, {99, 53, kSceneColor}});
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
    shown.ExpectPixels({{35, 30, 0xFF181818}, {34, 30, kSceneColor}, {73, 30, kSceneColor}});
    shown.ExpectPixels({{40, 21, 0xFF181818}, {40, 20, kSceneColor}, {50, 50, kSceneColor}});
    EXPECT_LT(shown.scene.GetPixel(63, 30), 0xFF181818) << "the outline over the shadow";
    EXPECT_LT(shown.scene.GetPixel(50, 37), 0xFF181818);
}

// Green beside blue, at a zoom of 1 / 2 one pixel of each from two: filtered, they run into each
// other.
TEST(DrawScene, HasTheLooksThatTheHostWants) {
    Shown shown(40, 40, 0.5);
    shown.canvas = FilledPicture(40, 40, kGreen);
    for (int y = 0; y < 40; ++y)
        for (int x = 1; x < 40; x += 2)
            shown.canvas.SetPixel(x, y, kBlue);
    const auto middle = [&](const SceneLooks& looks) {
        DrawScene(shown.scene, shown.canvas, 0, shown.view, {}, looks);
        return *shown.scene.GetPixel(50, 30);
    };
    EXPECT_THAT(middle({}), ::testing::AnyOf(kGreen, kBlue));
    const Argb mixed = middle({.SmoothWhenSmall = true});
    EXPECT_NEAR(graphics::GreenOf(mixed), 128, 10);
    EXPECT_NEAR(graphics::BlueOf(mixed), 128, 10);
    middle({.Ground = 0xFF4A4D52});
    EXPECT_EQ(shown.scene.GetPixel(5, 5), 0xFF4A4D52);
    // Below the page's middle all of the shadow is seen: 35 % of black, beyond the outline.
    EXPECT_EQ(shown.scene.GetPixel(50, 41), 0xFF303235);
    shown.view.Zoom = 1;
    EXPECT_EQ(middle({.SmoothWhenSmall = true}), kGreen);
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
