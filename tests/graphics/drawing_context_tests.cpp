#include "graphics/drawing_context.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

using testing::EllipsePath;
using testing::RectanglePath;

constexpr Argb kBlack = 0xFF000000;

class DrawingContextTest : public ::testing::Test {
protected:
    std::string Runs() const { return PixelRuns(bitmap_); }

    Bitmap bitmap_{16, 16};
    DrawingContext context_{bitmap_};
};

TEST_F(DrawingContextTest, FillsByThePixelOffset) {
    const struct {
        PixelOffsetMode Mode;
        const char* Rectangle;
        const char* Ellipse;
    } cases[] = {
        {PixelOffsetMode::Default, "2-3: 2-3", "2: 2-4; 3: 1-4; 4: 2-4"},
        {PixelOffsetMode::HighQuality, "1-2: 1-2", "1: 2-3; 2-3: 1-4; 4: 2-3"},
    };
    for (const auto& test : cases) {
        context_.SetPixelOffsetMode(test.Mode);
        context_.Clear(0);
        context_.FillRectangle(SolidBrush{kBlack}, {1.5f, 1.5f, 2, 2});
        EXPECT_EQ(Runs(), test.Rectangle);
        context_.Clear(0);
        context_.FillPath(SolidBrush{kBlack}, EllipsePath({1, 1, 4, 4}));
        EXPECT_EQ(Runs(), test.Ellipse);
        context_.Clear(0);
        context_.FillRegion(SolidBrush{kBlack}, Region::FromPath(EllipsePath({1, 1, 4, 4})));
        EXPECT_EQ(Runs(), "2: 2-4; 3: 1-4; 4: 2-4") << "a region knows no offset";
    }
}

TEST_F(DrawingContextTest, SmoothFillsAreTheCoverageOfThePixelsSquares) {
    const unsigned expected[5][5] = {{0, 54, 122, 54, 0},
                                     {54, 251, 255, 251, 54},
                                     {122, 255, 255, 255, 122},
                                     {54, 251, 255, 251, 54},
                                     {0, 54, 122, 54, 0}};
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    context_.FillPath(SolidBrush{kBlack}, EllipsePath({1, 1, 4, 4}));
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            const bool near = x >= 1 && x <= 5 && y >= 1 && y <= 5;
            EXPECT_NEAR(AlphaOf(bitmap_.Row(y)[x]), near ? expected[y - 1][x - 1] : 0, 12)
                << x << ", " << y;
        }
    }

    context_.Clear(0);
    context_.FillPath(SolidBrush{0x81123456}, RectanglePath({2, 2, 3, 3}));
    EXPECT_EQ(bitmap_.GetPixel(3, 3), 0x81123456u);
    EXPECT_EQ(bitmap_.GetPixel(2, 3), 0x41123456u) << "half of 129, rounded";
    EXPECT_EQ(bitmap_.GetPixel(5, 5), 0x20123456u) << "a quarter";
    context_.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context_.Clear(0);
    context_.FillPath(SolidBrush{kBlack}, RectanglePath({2, 2, 3, 3}));
    EXPECT_EQ(Runs(), "2-4: 2-4");
    EXPECT_EQ(bitmap_.GetPixel(4, 4), kBlack);
}

TEST_F(DrawingContextTest, SmoothFillsObeyFillModeAndCanvas) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    context_.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    for (FillMode mode : {FillMode::Alternate, FillMode::Winding}) {
        Path path(mode);
        path.AddRectangle({-1e30f, -1e30f, 2e30f, 2e30f});
        path.AddRectangle({2, 2, 3, 12});
        path.AddPolygon(
            std::vector<PointF>{{0, 0}, {std::numeric_limits<float>::quiet_NaN(), 3}, {9, 9}});
        context_.Clear(0);
        context_.FillPath(SolidBrush{kBlack}, path);
        EXPECT_EQ(Runs(), mode == FillMode::Winding ? "0-15: 0-15"
                                                    : "0-1: 0-15; 2-13: 0-1 5-15; 14-15: 0-15");
    }
}

TEST_F(DrawingContextTest, EveryPixelIsBlendedOnce) {
    Path overlapping(FillMode::Winding);
    overlapping.AddRectangle({1, 1, 4, 4});
    overlapping.AddRectangle({3, 3, 4, 4});
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        context_.SetSmoothingMode(smoothing);
        context_.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
        context_.Clear(0xFF204060);
        context_.FillPath(SolidBrush{0x80C0A010}, overlapping);
        for (int i = 1; i < 7; ++i)
            EXPECT_EQ(bitmap_.GetPixel(i, i), 0xFF707038u);
        EXPECT_EQ(bitmap_.GetPixel(7, 7), 0xFF204060u);
    }
}

TEST_F(DrawingContextTest, GradientsAreEvaluatedAtPixelCentres) {
    for (const auto& [offset, third] : {std::pair{PixelOffsetMode::Default, 0xBFFFFFFF},
                                        {PixelOffsetMode::HighQuality, 0xBDFFFFFF}}) {
        context_.SetPixelOffsetMode(offset);
        for (auto mode : {LinearGradientMode::Horizontal, LinearGradientMode::Vertical}) {
            const LinearGradientBrush brush{{0, 0, 42, 42}, 0xC8FFFFFF, 0x14FFFFFF, mode};
            context_.Clear(0);
            context_.FillRegion(brush, Region::FromPixelRects({{2, 2, 9, 9}}));
            EXPECT_EQ(bitmap_.GetPixel(2, 2), third);
            for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
                context_.SetSmoothingMode(smoothing);
                context_.Clear(0);
                context_.FillPath(brush, RectanglePath({1, 1, 9, 9}));
                EXPECT_EQ(bitmap_.GetPixel(2, 2), third);
            }
        }
    }
}

TEST_F(DrawingContextTest, SoftEdgesOfAHorizontalGradient) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    const LinearGradientBrush across{{0, 0, 8, 8}, 0xFF000000, 0x00000000};
    context_.FillPath(across, RectanglePath({0, 2, 8, 2}));
    const int places[][2] = {{4, 3}, {4, 2}, {4, 4}, {0, 3}};
    const Argb expected[] = {0x80000000, 0x40000000, 0x40000000, 0x80000000};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(bitmap_.GetPixel(places[i][0], places[i][1]), expected[i]) << i;
}

TEST_F(DrawingContextTest, ClipsAreHardAndBindEverything) {
    // A triangle's clip by the offset in force; then everything is painted through it.
    const Path triangle = testing::PolygonPath({{1, 1}, {4, 1}, {1, 4}});
    const SolidBrush black{kBlack};
    const std::function<void(DrawingContext&)> paintings[] = {
        [&](DrawingContext& context) {
            context.FillPath(black, RectanglePath({-1, -1, 20, 20}));
        },
        [&](DrawingContext& context) {
            context.FillRectangle(black, {0, 0, 16, 16});
        },
        [&](DrawingContext& context) { context.FillRegion(black, Region::Infinite()); },
        [&](DrawingContext& context) { context.Clear(kBlack); },
    };
    for (PixelOffsetMode mode : {PixelOffsetMode::Default, PixelOffsetMode::HighQuality}) {
        const char* expected =
            mode == PixelOffsetMode::Default ? "1: 1-3; 2: 1-2; 3: 1" : "1: 1-2; 2: 1";
        for (const auto& paint : paintings) {
            Bitmap bitmap(16, 16);
            DrawingContext context(bitmap);
            context.SetPixelOffsetMode(mode);
            context.SetSmoothingMode(SmoothingMode::AntiAlias);
            context.SetClipPath(triangle, CombineMode::Replace);
            paint(context);
            EXPECT_EQ(PixelRuns(bitmap), expected);
            EXPECT_EQ(bitmap.GetPixel(1, 1), kBlack);
        }
    }
}

TEST_F(DrawingContextTest, ClipsNarrowOrReplace) {
    context_.SetClipRegion(Region::FromRect({1, 1, 4, 4}), CombineMode::Intersect);
    context_.SetClipPath(RectanglePath({3, 3, 9, 9}), CombineMode::Intersect);
    context_.SetClipPath(Path(), CombineMode::Replace);
    context_.SetClipRegion(Region(), CombineMode::Intersect);
    context_.Clear(kBlack);
    EXPECT_EQ(Runs(), "3-4: 3-4");
    context_.SetClipRegion(Region::FromRect({7, 7, 1, 20}), CombineMode::Replace);
    context_.Clear(kBlack);
    EXPECT_EQ(Runs(), "3-4: 3-4; 7-15: 7");
}

// A clip of many rectangles a row, under a smooth fill.
TEST_F(DrawingContextTest, SmoothFillsAreCutPixelByPixel) {
    Bitmap whole(16, 16);
    DrawingContext unclipped(whole);
    context_.SetClipRegion(Region::FromPixelRects(testing::ChessPixels(16)), CombineMode::Replace);
    for (DrawingContext* context : {&context_, &unclipped}) {
        context->SetSmoothingMode(SmoothingMode::AntiAlias);
        context->FillPath(SolidBrush{0xC0123456}, EllipsePath({1, 1, 12, 13}));
    }
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            EXPECT_EQ(bitmap_.Row(y)[x], (x + y) % 2 == 0 ? whole.Row(y)[x] : 0) << x << "," << y;
    }
}

TEST_F(DrawingContextTest, DrawsRectangles) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        float Width;
        RectF Rect;
        const char* Expected;
    } cases[] = {
        {1, {2, 2, 5, 4}, "2: 2-7; 3-5: 2 7; 6: 2-7"},
        {1, {2, 2, 1, 1}, "2-3: 2-3"},
        {1, {2.4f, 2.4f, 5, 4}, "2: 2-7; 3-5: 2 7; 6: 2-7"},
        {1, {1.5f, 1.5f, 5, 4}, "2: 2-7; 3-5: 2 7; 6: 2-7"},
        {1, {2, 2, 0, 3}, "2-5: 2"},
        {1, {2, 2, 0, 0}, ""},
        {1, {2, 2, -1, 3}, ""},
        {1, {2, nan, 1, 3}, ""},
        {1, {-5, -5, 8, 8}, "0-2: 3; 3: 0-3"},
        {1, {-1e30f, 3, 2e30f, 2}, "3: 0-15; 5: 0-15"},
        {2, {3, 3, 5, 4}, "2-3: 2-8; 4-5: 2-3 7-8; 6-7: 2-8"},
        {3, {3, 3, 5, 4}, "2-4: 2-9; 5: 2-4 7-9; 6-8: 2-9"},
        {5, {5, 5, 5, 4}, "3-11: 3-12"},
        {2, {3, 3, -5, 4}, ""},
    };
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        context_.SetSmoothingMode(smoothing);
        for (const auto& test : cases) {
            context_.Clear(0);
            context_.DrawRectangle({SolidBrush{0x80C0A010}, test.Width}, test.Rect);
            EXPECT_EQ(Runs(), test.Expected) << test.Rect.X << " width " << test.Width;
            for (int i = 0; i < 256; ++i)
                EXPECT_TRUE(bitmap_.Pixels()[i] == 0 || bitmap_.Pixels()[i] == 0x80C0A010);
        }
    }
    context_.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context_.Clear(0);
    context_.DrawRectangle({SolidBrush{kBlack}, 1}, {2, 2, 5, 4});
    EXPECT_EQ(Runs(), "2: 2-7; 3-5: 2 7; 6: 2-7");
}

TEST_F(DrawingContextTest, NothingIsDrawnWithNothing) {
    context_.FillPath(SolidBrush{kBlack}, Path());
    context_.FillRegion(SolidBrush{kBlack}, Region());
    context_.FillRegion(SolidBrush{kBlack}, Region::Empty());
    context_.FillRectangle(SolidBrush{kBlack}, {1, 1, 0, 5});
    context_.FillRectangle(SolidBrush{kBlack}, {1, 1, 5, -1});
    EXPECT_EQ(Runs(), "");

    Bitmap none;
    DrawingContext nowhere(none);
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        nowhere.SetSmoothingMode(smoothing);
        nowhere.Clear(kBlack);
        nowhere.FillRectangle(SolidBrush{kBlack}, {0, 0, 5, 5});
        nowhere.FillPath(SolidBrush{kBlack}, EllipsePath({0, 0, 5, 5}));
        for (float width : {1.0F, 9.0F}) {
            nowhere.DrawRectangle({SolidBrush{kBlack}, width}, {0, 0, 5, 5});
            nowhere.DrawLine({SolidBrush{kBlack}, width}, {0, 0}, {9, 9});
            nowhere.DrawEllipse({SolidBrush{kBlack}, width}, {0, 0, 9, 9});
        }
        nowhere.SetClipPath(EllipsePath({0, 0, 5, 5}), CombineMode::Intersect);
    }
    EXPECT_TRUE(none.IsEmpty());
}

TEST(DrawingOn24Bits, AlphaStaysFull) {
    Bitmap bitmap(2, 1, PixelFormat::Rgb24);
    DrawingContext context(bitmap);
    context.Clear(0x00204060);
    EXPECT_EQ(bitmap.GetPixel(0, 0), 0xFF204060u);
    context.FillRectangle(SolidBrush{0x80C0A010}, {0, 0, 1, 1});
    EXPECT_EQ(bitmap.GetPixel(0, 0), 0xFF707038u);
    EXPECT_EQ(bitmap.GetPixel(1, 0), 0xFF204060u);
}

}  // namespace
}  // namespace orbelle::graphics
