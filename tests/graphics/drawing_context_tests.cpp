#include "graphics/drawing_context.h"

#include <gtest/gtest.h>

#include <cmath>

#include "graphics/checkerboard.h"
#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

using enum PixelOffsetMode;
using testing::EllipsePath;
using testing::RectanglePath;

const SolidBrush kBlack{0xFF000000};

class DrawingContextTest : public ::testing::Test {
protected:
    // What has been drawn since the last call.
    std::string Drawn() {
        const std::string runs = PixelRuns(bitmap_);
        context_.Clear(0);
        return runs;
    }

    Bitmap bitmap_{16, 16};
    DrawingContext context_{bitmap_};
};

TEST_F(DrawingContextTest, FillsByThePixelOffset) {
    const Path circle = EllipsePath({1, 1, 4, 4});
    for (const PixelOffsetMode mode : {PixelOffsetMode::Default, HighQuality}) {
        const bool half = mode == HighQuality;
        context_.SetPixelOffsetMode(mode);
        context_.FillRectangle(kBlack, {1.5f, 1.5f, 2, 2});
        EXPECT_EQ(Drawn(), half ? "1-2: 1-2" : "2-3: 2-3");
        context_.FillPath(kBlack, circle);
        EXPECT_EQ(Drawn(), half ? "1: 2-3; 2-3: 1-4; 4: 2-3" : "2: 2-4; 3: 1-4; 4: 2-4");
        context_.FillRegion(kBlack, Region::FromPath(circle));
        EXPECT_EQ(Drawn(), "2: 2-4; 3: 1-4; 4: 2-4") << "a region knows no offset";
    }
}

TEST_F(DrawingContextTest, SmoothFillsAreTheCoverageOfThePixelsSquares) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    context_.FillPath(SolidBrush{0x81123456}, RectanglePath({2, 2, 3, 3}));
    EXPECT_EQ(bitmap_.GetPixel(3, 3), 0x81123456u);
    EXPECT_EQ(bitmap_.GetPixel(2, 3), 0x41123456u) << "half of 129, rounded";
    EXPECT_EQ(bitmap_.GetPixel(5, 5), 0x20123456u) << "a quarter";
    context_.SetPixelOffsetMode(HighQuality);
    context_.Clear(0);
    context_.FillPath(kBlack, RectanglePath({2, 2, 3, 3}));
    EXPECT_EQ(bitmap_.GetPixel(4, 4), kBlack.Color);
    EXPECT_EQ(Drawn(), "2-4: 2-4");
}

TEST_F(DrawingContextTest, FiguresThatOverlapAreBlendedOnceByTheFillMode) {
    constexpr Argb kSoft = 0x80C0A010;
    context_.SetPixelOffsetMode(HighQuality);
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        context_.SetSmoothingMode(smoothing);
        for (FillMode mode : {FillMode::Alternate, FillMode::Winding}) {
            Path path(mode);
            path.AddRectangle({-1e30f, -1e30f, 2e30f, 2e30f});
            path.AddRectangle({2, 2, 3, 12});
            path.AddPolygon(std::vector<PointF>{{0, 0}, {NAN, 3}, {9, 9}});
            context_.FillPath(SolidBrush{kSoft}, path);
            for (int i = 0; i < 256; ++i)
                EXPECT_TRUE(bitmap_.Pixels()[i] == 0 || bitmap_.Pixels()[i] == kSoft);
            EXPECT_EQ(Drawn(), mode == FillMode::Winding
                                   ? "0-15: 0-15"
                                   : "0-1: 0-15; 2-13: 0-1 5-15; 14-15: 0-15");
        }
    }
}

TEST_F(DrawingContextTest, GradientsAreEvaluatedAtPixelCentres) {
    for (const auto& [offset, third] :
         {std::pair{PixelOffsetMode::Default, 0xBFFFFFFF}, {HighQuality, 0xBDFFFFFF}}) {
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
    // Its soft edges are half covered.
    context_.SetPixelOffsetMode(PixelOffsetMode::Default);
    context_.Clear(0);
    context_.FillPath(LinearGradientBrush{{0, 0, 8, 8}, 0xFF000000, 0x00000000},
                      RectanglePath({0, 2, 8, 2}));
    for (const auto& [x, y, color] :
         {std::tuple{4, 3, 0x80000000}, {4, 2, 0x40000000}, {4, 4, 0x40000000}, {0, 3, 0x80000000}})
        EXPECT_EQ(bitmap_.GetPixel(x, y), color) << x << ", " << y;
}

TEST_F(DrawingContextTest, ClipsAreHardAndBindEverything) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    for (PixelOffsetMode mode : {PixelOffsetMode::Default, HighQuality}) {
        const char* expected = mode == HighQuality ? "1: 1-2; 2: 1" : "1: 1-3; 2: 1-2; 3: 1";
        context_.SetPixelOffsetMode(mode);
        context_.SetClipPath(testing::PolygonPath({{1, 1}, {4, 1}, {1, 4}}), CombineMode::Replace);
        context_.FillPath(kBlack, RectanglePath({-1, -1, 20, 20}));
        EXPECT_EQ(bitmap_.GetPixel(1, 1), kBlack.Color);
        EXPECT_EQ(Drawn(), expected);
        context_.FillRectangle(kBlack, {0, 0, 16, 16});
        EXPECT_EQ(Drawn(), expected);
        context_.FillRegion(kBlack, Region::Infinite());
        EXPECT_EQ(Drawn(), expected);
        context_.Clear(kBlack.Color);
        EXPECT_EQ(Drawn(), expected);
    }
}

TEST_F(DrawingContextTest, ClipsNarrowOrReplace) {
    context_.SetClipRegion(Region::FromRect({1, 1, 4, 4}), CombineMode::Intersect);
    context_.SetClipPath(RectanglePath({3, 3, 9, 9}), CombineMode::Intersect);
    context_.SetClipPath(Path(), CombineMode::Replace);
    context_.SetClipRegion(Region(), CombineMode::Intersect);
    context_.Clear(kBlack.Color);
    EXPECT_EQ(Drawn(), "3-4: 3-4");
    context_.SetClipRegion(Region::FromRect({7, 7, 1, 20}), CombineMode::Replace);
    context_.Clear(kBlack.Color);
    EXPECT_EQ(Drawn(), "7-15: 7");
}

TEST_F(DrawingContextTest, DrawsRectangles) {
    const struct {
        float Width;
        RectF Rect;
        const char* Expected;
    } cases[] = {
        {1, {2, 2, 5, 4}, "2: 2-7; 3-5: 2 7; 6: 2-7"},
        {1, {2.4f, 2.4f, 5, 4}, "2: 2-7; 3-5: 2 7; 6: 2-7"},
        {1, {1.5f, 1.5f, 5, 4}, "2: 2-7; 3-5: 2 7; 6: 2-7"},
        {1, {2, 2, 0, 3}, "2-5: 2"},
        {1, {2, 2, 0, 0}, ""},
        {1, {2, 2, -1, 3}, ""},
        {1, {2, NAN, 1, 3}, ""},
        {1, {-1e30f, 3, 2e30f, 2}, "3: 0-15; 5: 0-15"},
        {2, {3, 3, 5, 4}, "2-3: 2-8; 4-5: 2-3 7-8; 6-7: 2-8"},
        {3, {3, 3, 5, 4}, "2-4: 2-9; 5: 2-4 7-9; 6-8: 2-9"},
        {5, {5, 5, 5, 4}, "3-11: 3-12"},
        {2, {3, 3, -5, 4}, ""},
    };
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        context_.SetSmoothingMode(smoothing);
        for (const auto& [width, rect, expected] : cases) {
            context_.DrawRectangle({SolidBrush{0x80C0A010}, width}, rect);
            for (int i = 0; i < 256; ++i)
                EXPECT_TRUE(bitmap_.Pixels()[i] == 0 || bitmap_.Pixels()[i] == 0x80C0A010);
            EXPECT_EQ(Drawn(), expected) << rect.X << " width " << width;
        }
    }
    context_.SetPixelOffsetMode(HighQuality);
    context_.DrawRectangle({kBlack, 1}, {2, 2, 5, 4});
    EXPECT_EQ(Drawn(), "2: 2-7; 3-5: 2 7; 6: 2-7");
}

TEST_F(DrawingContextTest, NothingIsDrawnWithNothing) {
    context_.FillPath(kBlack, Path());
    context_.FillRegion(kBlack, Region());
    context_.FillRegion(kBlack, Region::Empty());
    context_.FillRectangle(kBlack, {1, 1, 0, 5});
    context_.FillRectangle(kBlack, {1, 1, 5, -1});
    EXPECT_EQ(Drawn(), "");

    Bitmap none;
    DrawingContext nowhere(none);
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        nowhere.SetSmoothingMode(smoothing);
        nowhere.SetClipPath(EllipsePath({0, 0, 5, 5}), CombineMode::Intersect);
        nowhere.Clear(kBlack.Color);
        nowhere.FillRectangle(kBlack, {0, 0, 5, 5});
        nowhere.FillPath(kBlack, EllipsePath({0, 0, 5, 5}));
        for (float width : {1.0F, 9.0F}) {
            nowhere.DrawRectangle({kBlack, width}, {0, 0, 5, 5});
            nowhere.DrawEllipse({kBlack, width}, {0, 0, 9, 9});
        }
    }
    EXPECT_TRUE(none.IsEmpty());
}

TEST(DrawingOn24Bits, AlphaStaysFull) {
    Bitmap bitmap(2, 1, PixelFormat::Rgb24);
    DrawingContext context(bitmap);
    context.Clear(0x00204060);
    context.FillRectangle(SolidBrush{0x80C0A010}, {0, 0, 1, 1});
    EXPECT_EQ(bitmap.GetPixel(0, 0), 0xFF707038u);
    EXPECT_EQ(bitmap.GetPixel(1, 0), 0xFF204060u);
}

TEST(Checkerboard, BeginsInTheCornerOfItsArea) {
    const struct {
        RectI Area;
        const char* Second;
    } cases[] = {
        {{0, 0, 19, 12}, "0-4: 5-9 15-18; 5-9: 0-4 10-14; 10-11: 5-9 15-18"},
        {{2, 1, 7, 6}, "1-5: 7-8; 6: 2-6"},
        {{-3, -6, 40, 40}, "0-3: 0-1 7-11 17-18; 4-8: 2-6 12-16; 9-11: 0-1 7-11 17-18"},
        {{5, 5, 0, 9}, ""},
        {{30, 0, 9, 9}, ""},
    };
    for (const auto& [area, second] : cases) {
        Bitmap board(19, 12);
        DrawCheckerboard(board, area, 0, 0xFF336699);
        EXPECT_EQ(PixelRuns(board), second);
    }
}

}  // namespace
}  // namespace orbelle::graphics
