#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "graphics/drawing_context.h"
#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

constexpr Argb kBlack = 0xFF000000;
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

const Pen kThinPen{SolidBrush{kBlack}, 1};

Pen BlackPen(float width) {
    return {SolidBrush{kBlack}, width};
}

class DrawingLinesTest : public ::testing::Test {
protected:
    std::string Runs() const { return PixelRuns(bitmap_); }

    std::string Lines(const Pen& pen, const std::vector<PointF>& points) {
        context_.Clear(0);
        context_.DrawLines(pen, points);
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

    void ExpectAlphas(int left, int top, const std::vector<std::vector<int>>& expected) const {
        for (int y = 0; y < bitmap_.Height(); ++y) {
            for (int x = 0; x < bitmap_.Width(); ++x) {
                const bool inTable = y >= top && y < top + std::ssize(expected) && x >= left &&
                                     x < left + std::ssize(expected[0]);
                const int alpha = inTable ? expected[y - top][x - left] : 0;
                EXPECT_NEAR(AlphaOf(bitmap_.Row(y)[x]), alpha, 12) << x << ", " << y;
            }
        }
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
    };
    for (const auto& test : cases) {
        EXPECT_EQ(Lines(kThinPen, test.Points), test.Expected);
        EXPECT_EQ(Lines(kThinPen, {test.Points.rbegin(), test.Points.rend()}), test.Expected)
            << "from the other end";
        context_.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
        std::vector<PointF> moved = test.Points;
        for (PointF& point : moved)
            point = {point.X + 0.5F, point.Y + 0.5F};
        EXPECT_EQ(Lines(kThinPen, moved), test.Expected) << "centres at halves";
        context_.SetPixelOffsetMode(PixelOffsetMode::Default);
    }
    EXPECT_EQ(Polygon(kThinPen, {{1, 1}, {4, 1}, {1, 4}}), "1: 1-4; 2: 1 3; 3: 1-2; 4: 1");
}

TEST_F(DrawingLinesTest, FarAwayLinesHitThePixelsOfTheWholeWalk) {
    const struct {
        PointF Start, End;
        const char* Expected;
    } cases[] = {
        {{-1e9F, 3}, {1e9F, 3}, "3: 0-31"},
        {{5, -1e9F}, {5, 1e9F}, "0-31: 5"},
        {{-1e9F, -1e9F}, {3, 3}, "0: 0; 1: 1; 2: 2; 3: 3"},
        {{-1e9F, -1e9F}, {1e9F, -1e9F}, ""},
        // 3 rows for each 8 columns, as in (2,2)-(10,5), but from 2,000,000 columns before.
        {{2 - 2000000, 2 - 750000}, {10, 5}, "1: 0; 2: 1-3; 3: 4-5; 4: 6-8; 5: 9-10"},
        {{kNan, 3}, {9, 3}, ""},
        {{3, 3}, {9, kInfinity}, ""},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(Lines(kThinPen, {test.Start, test.End}), test.Expected) << test.Start.X;
        EXPECT_EQ(Lines(kThinPen, {test.End, test.Start}), test.Expected) << test.Start.X;
    }
}

TEST_F(DrawingLinesTest, HostileNumbersAreHarmless) {
    const float hostile[] = {kNan, kInfinity, -kInfinity, 3e38F, -3e38F, 1e9F, -1e9F, 1e-40F, 7};
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        context_.SetSmoothingMode(smoothing);
        for (float width : {1.0F, 20.0F, kInfinity, kNan, -1.0F}) {
            for (float a : hostile) {
                for (float b : hostile) {
                    context_.DrawLine(BlackPen(width), {a, 4}, {9, b});
                    context_.DrawPolygon(BlackPen(width),
                                         std::vector<PointF>{{a, b}, {b, a}, {3, 3}, {a, a}});
                    context_.DrawEllipse(BlackPen(width), {a, b, b, a});
                    context_.FillEllipse(SolidBrush{kBlack}, {a, b, b, a});
                }
            }
        }
        // And what is right in front of one's eyes stays where it belongs.
        EXPECT_EQ(Lines(BlackPen(4), {{-1e9F, 10}, {1e9F, 10}}),
                  smoothing == SmoothingMode::None ? "8-11: 0-31" : "8-12: 0-31");
    }
}

TEST_F(DrawingLinesTest, WideLinesCoverThePixelsWhoseCentresTheyCover) {
    const struct {
        float Width;
        std::vector<PointF> Points;
        const char* Expected;
    } cases[] = {
        {2, {{2, 4}, {8, 4}}, "3-4: 2-7"},
        {3, {{2, 4}, {8, 4}}, "3-5: 2-7"},
        {3, {{2, 4}, {2, 4}}, ""},
        // A mitred corner, and a way there and back whose end is flat.
        {4, {{4, 4}, {12, 4}, {12, 10}}, "2-5: 4-13; 6-9: 10-13"},
        {4, {{4, 4}, {12, 4}, {6, 4}}, "2-5: 4-11"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(Lines(BlackPen(test.Width), test.Points), test.Expected);
    EXPECT_EQ(Polygon(BlackPen(2), {{3, 3}, {8, 3}, {8, 7}, {3, 7}}),
              "2-3: 2-8; 4-5: 2-3 7-8; 6-7: 2-8");
    EXPECT_EQ(Polygon(BlackPen(2), {{2, 4}, {8, 4}}), "3-4: 2-7") << "two points are a line";

    // One pixel more or less at either edge of a slanting line.
    const int expected[][2] = {{3, 3}, {2, 4}, {2, 5}, {3, 6}, {4, 7}, {5, 8}, {6, 7}, {7, 7}};
    context_.Clear(0);
    context_.DrawLine(BlackPen(3), {2, 2}, {8, 7});
    for (int y = 1; y <= 8; ++y) {
        const Argb* row = bitmap_.Row(y);
        const auto first = std::find(row, row + 32, kBlack) - row;
        const auto end = std::find(row + first, row + 32, 0U) - row;
        EXPECT_NEAR(first, expected[y - 1][0], 1) << y;
        EXPECT_NEAR(end - 1, expected[y - 1][1], 1) << y;
    }
}

TEST_F(DrawingLinesTest, SmoothLinesAreTheirCoverage) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    const struct {
        float Width;
        PointF Start, End;
        int Left, Top;
        std::vector<std::vector<int>> Alphas;
    } cases[] = {
        {1, {2, 3}, {8, 3}, 2, 3, {{128, 255, 255, 255, 255, 255, 128}}},
        {2,
         {2, 3},
         {8, 3},
         2,
         2,
         {{64, 128, 128, 128, 128, 128, 64},
          {128, 255, 255, 255, 255, 255, 128},
          {64, 128, 128, 128, 128, 128, 64}}},
        {1,
         {2, 2},
         {5, 5},
         2,
         2,
         {{117, 64, 0, 0}, {64, 234, 64, 0}, {0, 64, 234, 64}, {0, 0, 64, 117}}},
        {1,
         {2, 2},
         {6, 4},
         2,
         2,
         {{119, 143, 25, 0, 0}, {25, 143, 237, 143, 25}, {0, 0, 25, 143, 119}}},
        // Narrower pens count as 1.
        {0, {2, 3}, {8, 3}, 2, 3, {{128, 255, 255, 255, 255, 255, 128}}},
        {1, {3, 3}, {3, 3}, 3, 3, {{0}}},
    };
    for (const auto& test : cases) {
        context_.Clear(0);
        context_.DrawLine(BlackPen(test.Width), test.Start, test.End);
        ExpectAlphas(test.Left, test.Top, test.Alphas);
    }
}

TEST_F(DrawingLinesTest, ASmoothEllipse) {
    context_.SetSmoothingMode(SmoothingMode::AntiAlias);
    context_.DrawEllipse(BlackPen(1), {1, 1, 4, 4});
    ExpectAlphas(1, 1,
                 {{35, 196, 251, 196, 35},
                  {196, 116, 7, 116, 196},
                  {251, 7, 0, 7, 251},
                  {196, 116, 7, 116, 196},
                  {35, 196, 251, 196, 35}});
}

// Joints and crossings of a soft colour are no darker than the lines.
TEST_F(DrawingLinesTest, EveryPixelIsBlendedOnce) {
    const std::vector<PointF> crossing{{2, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 2}, {10, 25}};
    for (float width : {1.0F, 3.0F}) {
        for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
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

TEST_F(DrawingLinesTest, ClipsBindLines) {
    const std::vector<PointF> points{{-5, 3}, {40, 9}, {3, 30}, {9, -4}};
    Bitmap whole(32, 32);
    DrawingContext unclipped(whole);
    context_.SetClipRegion(Region::FromPixelRects(testing::ChessPixels(32)), CombineMode::Replace);
    for (float width : {1.0F, 5.0F}) {
        for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
            for (DrawingContext* context : {&context_, &unclipped}) {
                context->SetSmoothingMode(smoothing);
                context->Clear(0);
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

TEST_F(DrawingLinesTest, LinesCrossTheWordsOfAWideBitmap) {
    Bitmap wide(200, 3);
    DrawingContext context(wide);
    context.SetClipRegion(Region::FromRect({60, 0, 70, 3}), CombineMode::Replace);
    context.DrawLine(kThinPen, {-10, 1}, {250, 1});
    EXPECT_EQ(PixelRuns(wide), "1: 60-129");
}

TEST_F(DrawingLinesTest, GradientsRunAlongPens) {
    const LinearGradientBrush across{{4, 0, 16, 1}, 0xFFFF0000, 0xFF0000FF};
    for (float width : {1.0F, 3.0F}) {
        context_.Clear(0);
        context_.DrawLine({across, width}, {4, 8}, {19, 8});
        for (int x = 4; x < 19; ++x)
            EXPECT_EQ(bitmap_.GetPixel(x, 8), across.ColorAt(x, 8)) << x;
    }
    EXPECT_EQ(bitmap_.GetPixel(4, 8), 0xFFFF0000U);
    EXPECT_EQ(bitmap_.GetPixel(12, 8), 0xFF800080U);

    // Along the edge of its own path only the inner half, and of that not the right and bottom rim.
    const Brush around = *CreatePathGradientFromPath(testing::RectanglePath({4, 4, 8, 8}), kBlack,
                                                     {8, 8}, 0xFF0000FF);
    EXPECT_EQ(Polygon({around, 1}, {{4, 4}, {12, 4}, {12, 12}, {4, 12}}), "4: 4-11; 5-11: 4");
    EXPECT_EQ(bitmap_.GetPixel(6, 4), 0xFF0000FFU);
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
            context_.DrawEllipse(kThinPen, {2, 2, width, height});
            EXPECT_EQ(LooseEnds(bitmap_), 0) << width << " x " << height;
            for (auto [x, y] : {PointF{2, 2 + height / 2},
                                {2 + width, 2 + height / 2},
                                {2 + width / 2, 2},
                                {2 + width / 2, 2 + height}})
                EXPECT_EQ(bitmap_.GetPixel(int(x + 0.5F), int(y + 0.5F)), kBlack);
        }
    }
    context_.Clear(0);
    context_.DrawEllipse(kThinPen, {4, 4, 0, 6});
    EXPECT_EQ(Runs(), "4-10: 4");
    context_.Clear(0);
    for (RectF nothing : {RectF{4, 4, 0, 0}, {9, 9, -4, 4}, {9, 9, 4, -4}}) {
        context_.DrawEllipse(kThinPen, nothing);
        context_.DrawEllipse(BlackPen(4), nothing);
        context_.FillEllipse(SolidBrush{kBlack}, nothing);
    }
    EXPECT_EQ(Runs(), "");
}

// Within half a pen of the curve everything is painted, further away nothing.
TEST_F(DrawingLinesTest, WideCirclesAreRings) {
    for (SmoothingMode smoothing : {SmoothingMode::None, SmoothingMode::AntiAlias}) {
        context_.SetSmoothingMode(smoothing);
        const double doubt = smoothing == SmoothingMode::AntiAlias ? 0.9 : 0.2;
        for (float radius : {0.5F, 1.0F, 2.0F, 4.0F, 5.0F, 7.0F}) {
            for (float width : {2.0F, 5.0F, 9.0F, 12.0F, 15.0F}) {
                DrawRing(radius, width);
                for (int y = 0; y < 32; ++y) {
                    for (int x = 0; x < 32; ++x) {
                        const double beyond =
                            std::abs(std::hypot(x - 16, y - 16) - radius) - width / 2;
                        if (std::abs(beyond) < doubt)
                            continue;
                        EXPECT_EQ(AlphaOf(bitmap_.Row(y)[x]), beyond < 0 ? 255U : 0U)
                            << "radius " << radius << ", pen " << width << ": " << x << ", " << y;
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

TEST_F(DrawingLinesTest, PensWiderThanTheShapeLeaveNoHole) {
    EXPECT_EQ(Polygon(BlackPen(5), {{5, 5}, {10, 5}, {10, 9}, {5, 9}}), "3-11: 3-12");
    context_.Clear(0);
    context_.DrawEllipse(BlackPen(255), {14, 12, 3, 9});
    EXPECT_EQ(Runs(), "0-31: 0-31");
    // A scribble within the pen's width.
    std::vector<PointF> spiral;
    for (float i = 0; i < 60; ++i)
        spiral.push_back(
            {16 + 0.05F * i * std::cos(0.3F * i), 16 + 0.05F * i * std::sin(0.3F * i)});
    Lines(BlackPen(16), spiral);
    for (int y = 10; y <= 22; ++y) {
        for (int x = 10; x <= 22; ++x)
            EXPECT_EQ(bitmap_.GetPixel(x, y), kBlack) << x << ", " << y;
    }
}

}  // namespace
}  // namespace orbelle::graphics
