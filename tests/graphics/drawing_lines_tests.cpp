#include <gtest/gtest.h>

#include <cmath>

#include "graphics/drawing_context.h"
#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

constexpr Argb kBlack = 0xFF000000;
constexpr SmoothingMode kSmoothings[] = {SmoothingMode::None, SmoothingMode::AntiAlias};

Pen BlackPen(float width) {
    return {SolidBrush{kBlack}, width};
}

class DrawingLinesTest : public ::testing::Test {
protected:
    std::string Runs() const { return PixelRuns(bitmap_); }

    std::string Lines(float width, const std::vector<PointF>& points) {
        context_.Clear(0);
        context_.DrawLines(BlackPen(width), points);
        return Runs();
    }
    std::string Polygon(const Pen& pen, const std::vector<PointF>& points) {
        context_.Clear(0);
        context_.DrawPolygon(pen, points);
        return Runs();
    }
    // A circle in the middle.
    void DrawRing(float radius, float width) {
        context_.Clear(0);
        context_.DrawEllipse(BlackPen(width), {16 - radius, 16 - radius, 2 * radius, 2 * radius});
    }

    Bitmap bitmap_{32, 32};
    DrawingContext context_{bitmap_};
};

TEST_F(DrawingLinesTest, OnePixelLines) {
    const struct {
        std::vector<PointF> Points;
        const char* Expected;
    } cases[] = {
        {{{2, 2}, {8, 2}}, "2: 2-8"},
        {{{2, 2}, {2, 5}}, "2-5: 2"},
        {{{2, 2}, {5, 5}}, "2: 2; 3: 3; 4: 4; 5: 5"},
        {{{2, 2}, {10, 5}}, "2: 2-3; 3: 4-5; 4: 6-8; 5: 9-10"},
        {{{2, 2}, {6, 4}}, "2: 2; 3: 3-4; 4: 5-6"},
        {{{2, 6}, {6, 4}}, "4: 6; 5: 4-5; 6: 2-3"},
        {{{2, 2}, {4, 6}}, "2: 2; 3-4: 3; 5-6: 4"},
        {{{20, 17}, {20.449F, 17.449F}}, "17: 20"},
        {{{2.4F, 2.5F}, {5.6F, 2.6F}}, "3: 2-6"},
        {{{3, 3}, {3, 3}}, ""},
        {{{3, 3}}, ""},
        {{}, ""},
        {{{2, 2}, {5, 2}, {5, 2}, {5, 4}}, "2: 2-5; 3-4: 5"},
        // From far away they hit the pixels of the whole walk.
        {{{-1e9F, 3}, {1e9F, 3}}, "3: 0-31"},
        {{{5, -1e9F}, {5, 1e9F}}, "0-31: 5"},
        {{{-1e9F, -1e9F}, {1e9F, -1e9F}}, ""},
        // 3 rows for each 8 columns, as in (2,2)-(10,5), but from 2,000,000 columns before.
        {{{2 - 2000000, 2 - 750000}, {10, 5}}, "1: 0; 2: 1-3; 3: 4-5; 4: 6-8; 5: 9-10"},
        {{{NAN, 3}, {9, 3}}, ""},
        {{{3, 3}, {9, INFINITY}}, ""},
    };
    for (const auto& [points, expected] : cases) {
        EXPECT_EQ(Lines(1, points), expected);
        EXPECT_EQ(Lines(1, {points.rbegin(), points.rend()}), expected) << "from the other end";
        context_.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
        std::vector<PointF> moved = points;
        for (PointF& point : moved)
            point = {point.X + 0.5F, point.Y + 0.5F};
        EXPECT_EQ(Lines(1, moved), expected) << "centres at halves";
        context_.SetPixelOffsetMode(PixelOffsetMode::Default);
    }
    EXPECT_EQ(Polygon(BlackPen(1), {{1, 1}, {4, 1}, {1, 4}}), "1: 1-4; 2: 1 3; 3: 1-2; 4: 1");

    Bitmap wide(200, 3);  // several words a row
    DrawingContext context(wide);
    context.SetClipRegion(Region::FromRect({60, 0, 70, 3}), CombineMode::Replace);
    context.DrawLine(BlackPen(1), {-10, 1}, {250, 1});
    EXPECT_EQ(PixelRuns(wide), "1: 60-129");
}

TEST_F(DrawingLinesTest, HostileNumbersAreHarmless) {
    const float hostile[] = {NAN, INFINITY, -INFINITY, 3e38F, -3e38F, 1e9F, -1e9F, 1e-40F, 7};
    for (SmoothingMode smoothing : kSmoothings) {
        context_.SetSmoothingMode(smoothing);
        for (float width : {1.0F, 20.0F, INFINITY, NAN, -1.0F}) {
            for (float a : hostile) {
                for (float b : hostile) {
                    context_.DrawLine(BlackPen(width), {a, 4}, {9, b});
                    Polygon(BlackPen(width), {{a, b}, {b, a}, {3, 3}, {a, a}});
                    context_.DrawEllipse(BlackPen(width), {a, b, b, a});
                    context_.FillEllipse(SolidBrush{kBlack}, {a, b, b, a});
                }
            }
        }
        // And what is right in front of one's eyes stays where it belongs.
        EXPECT_EQ(Lines(4, {{-1e9F, 10}, {1e9F, 10}}),
                  smoothing == SmoothingMode::None ? "8-11: 0-31" : "8-12: 0-31");
    }
}

TEST_F(DrawingLinesTest, WideLinesCoverThePixelsWhoseCentresTheyCover) {
    EXPECT_EQ(Lines(2, {{2, 4}, {8, 4}}), "3-4: 2-7");
    EXPECT_EQ(Lines(3, {{2, 4}, {8, 4}}), "3-5: 2-7");
    EXPECT_EQ(Lines(3, {{2, 4}, {2, 4}}), "");
    EXPECT_EQ(Lines(3, {{2, 2}, {8, 7}}),
              "1: 3; 2: 2-4; 3: 2-5; 4: 3-6; 5: 4-7; 6: 5-8; 7: 6-8; 8: 7");
    EXPECT_EQ(Lines(4, {{4, 4}, {12, 4}, {12, 10}}), "2-5: 4-13; 6-9: 10-13") << "mitred";
    EXPECT_EQ(Lines(4, {{4, 4}, {12, 4}, {6, 4}}), "2-5: 4-11") << "there and back: a flat end";
    EXPECT_EQ(Polygon(BlackPen(2), {{3, 3}, {8, 3}, {8, 7}, {3, 7}}),
              "2-3: 2-8; 4-5: 2-3 7-8; 6-7: 2-8");
    EXPECT_EQ(Polygon(BlackPen(2), {{2, 4}, {8, 4}}), "3-4: 2-7") << "two points are a line";

    // Pens wider than the shape leave no hole.
    EXPECT_EQ(Polygon(BlackPen(5), {{5, 5}, {10, 5}, {10, 9}, {5, 9}}), "3-11: 3-12");
    DrawRing(3, 255);
    EXPECT_EQ(Runs(), "0-31: 0-31");
    std::vector<PointF> spiral;
    for (float i = 0; i < 60; ++i)
        spiral.push_back(
            {16 + 0.05F * i * std::cos(0.3F * i), 16 + 0.05F * i * std::sin(0.3F * i)});
    Lines(16, spiral);
    for (int y = 10; y <= 22; ++y) {
        for (int x = 10; x <= 22; ++x)
            EXPECT_EQ(bitmap_.GetPixel(x, y), kBlack) << x << ", " << y;
    }
}

TEST_F(DrawingLinesTest, SmoothLinesAreTheirCoverage) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    const struct {
        float Width;
        PointF Start, End;
        const char* Painted;
        std::vector<int> ThirdRow;
    } cases[] = {
        {1, {2, 3}, {8, 3}, "3: 2-8", {0, 0, 128, 255, 255, 255, 255, 255, 128}},
        {0, {2, 3}, {8, 3}, "3: 2-8", {0, 0, 128, 255, 255, 255, 255, 255, 128}},
        {1, {2, 2}, {5, 5}, "2: 2-3; 3: 2-4; 4: 3-5; 5: 4-5", {0, 0, 64, 234, 64}},
        {1, {3, 3}, {3, 3}, "", {}},
    };
    for (auto [width, start, end, painted, thirdRow] : cases) {
        EXPECT_EQ(Lines(width, {start, end}), painted);
        thirdRow.resize(32);
        for (int x = 0; x < 32; ++x)
            EXPECT_NEAR(AlphaOf(bitmap_.Row(3)[x]), thirdRow[x], 12) << painted << ": " << x;
    }
}

// Joints and crossings of a soft colour are no darker than the lines.
TEST_F(DrawingLinesTest, EveryPixelIsBlendedOnce) {
    const std::vector<PointF> crossing{{2, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 2}, {10, 25}};
    for (float width : {1.0F, 3.0F}) {
        for (SmoothingMode smoothing : kSmoothings) {
            context_.SetSmoothingMode(smoothing);
            context_.Clear(0xFF204060);
            context_.DrawLines({SolidBrush{0x80C0A010}, width}, crossing);
            for (PointF joint : {PointF{10, 10}, {10, 20}, {15, 10}})
                EXPECT_EQ(bitmap_.GetPixel(int(joint.X), int(joint.Y)), 0xFF707038U);
            for (int i = 0; i < 32 * 32; ++i)
                EXPECT_LE(RedOf(bitmap_.Pixels()[i]), 0x70U);
        }
    }
}

// A clip of many rectangles a row; also for smooth fills.
TEST_F(DrawingLinesTest, ClipsCutPixelByPixel) {
    const std::vector<PointF> points{{-5, 3}, {40, 9}, {3, 30}, {9, -4}};
    Bitmap whole(32, 32);
    DrawingContext unclipped(whole);
    context_.SetClipRegion(Region::FromPixelRects(testing::ChessPixels(32)), CombineMode::Replace);
    for (float width : {0.0F, 1.0F, 5.0F}) {
        for (SmoothingMode smoothing : kSmoothings) {
            for (DrawingContext* context : {&context_, &unclipped}) {
                context->SetSmoothingMode(smoothing);
                context->Clear(0);
                if (width == 0)
                    context->FillEllipse(SolidBrush{0xC0123456}, {1, 1, 25, 28});
                else
                    context->DrawLines({SolidBrush{0xC0123456}, width}, points);
            }
            EXPECT_NE(PixelRuns(whole), "");
            for (int y = 0; y < 32; ++y) {
                for (int x = 0; x < 32; ++x)
                    EXPECT_EQ(bitmap_.Row(y)[x], (x + y) % 2 == 0 ? whole.Row(y)[x] : 0);
            }
        }
    }
}

TEST_F(DrawingLinesTest, AGradientOutlinesItsOwnPath) {
    const Brush around =
        PathGradientBrush{testing::RectanglePath({4, 4, 8, 8}), kBlack, {8, 8}, 0xFF0000FF};
    EXPECT_EQ(Polygon({around, 1}, {{4, 4}, {12, 4}, {12, 12}, {4, 12}}),
              "4: 4-12; 5-11: 4 12; 12: 4-12");
    for (const auto& [x, y] : {std::pair{6, 4}, {4, 6}, {12, 6}, {6, 12}})
        EXPECT_EQ(bitmap_.GetPixel(x, y), 0xFF0000FFU);
}

// The pixels from which a line goes on to no more than one neighbour; a closed one has none.
int LooseEnds(const Bitmap& bitmap) {
    int ends = 0;
    for (int y = 1; y + 1 < bitmap.Height(); ++y) {
        for (int x = 1; x + 1 < bitmap.Width(); ++x) {
            int neighbours = -1;
            for (int i = 0; i < 9; ++i)
                neighbours += bitmap.Row(y + i / 3 - 1)[x + i % 3 - 1] != 0;
            ends += bitmap.Row(y)[x] != 0 && neighbours < 2;
        }
    }
    return ends;
}

TEST_F(DrawingLinesTest, EllipseOutlinesHaveNoGaps) {
    for (float width = 5; width <= 26; ++width) {
        for (float height = 5; height <= 26; height += 3) {
            context_.Clear(0);
            context_.DrawEllipse(BlackPen(1), {2, 2, width, height});
            EXPECT_EQ(LooseEnds(bitmap_), 0) << width << " x " << height;
            for (auto [x, y] : {PointF{2, 2 + height / 2},
                                {2 + width, 2 + height / 2},
                                {2 + width / 2, 2},
                                {2 + width / 2, 2 + height}})
                EXPECT_EQ(bitmap_.GetPixel(int(x + 0.5F), int(y + 0.5F)), kBlack);
        }
    }
    context_.Clear(0);
    context_.DrawEllipse(BlackPen(1), {4, 4, 0, 6});
    EXPECT_EQ(Runs(), "4-10: 4");
    context_.Clear(0);
    for (RectF nothing : {RectF{4, 4, 0, 0}, {9, 9, -4, 4}, {9, 9, 4, -4}}) {
        context_.DrawEllipse(BlackPen(1), nothing);
        context_.DrawEllipse(BlackPen(4), nothing);
        context_.FillEllipse(SolidBrush{kBlack}, nothing);
    }
    EXPECT_EQ(Runs(), "");
}

// Within half a pen of the curve everything is painted, further away nothing.
TEST_F(DrawingLinesTest, WideCirclesAreRings) {
    for (SmoothingMode smoothing : kSmoothings) {
        context_.SetSmoothingMode(smoothing);
        const double doubt = smoothing == SmoothingMode::AntiAlias ? 0.9 : 0.2;
        for (float radius : {0.5F, 1.0F, 2.0F, 4.0F, 5.0F, 7.0F}) {
            for (float width : {2.0F, 5.0F, 9.0F, 12.0F, 15.0F}) {
                DrawRing(radius, width);
                for (int i = 0; i < 32 * 32; ++i) {
                    const double away = std::abs(std::hypot(i % 32 - 16, i / 32 - 16) - radius);
                    if (std::abs(away - width / 2) >= doubt) {
                        EXPECT_EQ(AlphaOf(bitmap_.Pixels()[i]), away < width / 2 ? 255U : 0U)
                            << "radius " << radius << ", pen " << width << ": " << i;
                    }
                }
            }
        }
    }
}

// A pixel's centre on the right or bottom edge is outside, and on the top edge nothing is wide.
TEST_F(DrawingLinesTest, WideCirclesHaveNoSpikes) {
    for (float radius : {1, 3, 6, 9}) {
        DrawRing(radius, 8);
        const int reach = static_cast<int>(radius) + 4;
        EXPECT_EQ(bitmap_.GetPixel(16 + reach, 16), 0U) << radius;
        EXPECT_EQ(bitmap_.GetPixel(16, 16 + reach), 0U) << radius;
        EXPECT_EQ(bitmap_.GetPixel(16, 16 - reach), 0U) << radius;
        EXPECT_EQ(bitmap_.GetPixel(16, 17 - reach), kBlack) << radius;
    }
}

}  // namespace
}  // namespace orbelle::graphics
