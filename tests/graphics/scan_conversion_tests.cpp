#include "graphics/detail/scan_conversion.h"

#include <gtest/gtest.h>

#include <array>
#include <cfloat>
#include <cmath>
#include <random>

#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

using testing::EllipsePath;
using testing::PolygonPath;

constexpr RectI kArea{0, 0, 32, 32};
constexpr double kNone = 0, kHalf = 0.5;

std::string Runs(const Path& path, double offset) {
    return PixelRuns(PixelsInside(path.Flatten(), path.Fill(), offset, kArea));
}

TEST(PixelsInside, BoxesTakeLeftAndTopEdgesOnly) {
    const struct {
        RectF Rect;
        double Offset;
        RectI Expected;
    } cases[] = {
        {{1, 1, 2, 2}, kNone, {1, 1, 2, 2}},
        {{1.25f, 1.25f, 2, 2}, kNone, {2, 2, 2, 2}},
        {{1.5f, 1.5f, 2, 2}, kNone, {2, 2, 2, 2}},
        {{1.5f, 1.5f, 2, 2}, kHalf, {1, 1, 2, 2}},
        {{10.1f, 10.1f, 0.9f, 0.9f}, kNone, {}},
        {{-5, -5, 8, 100}, kNone, {0, 0, 3, 32}},
        {{40, 0, 5, 5}, kNone, {}},
        {{1, 1, 0, 5}, kNone, {}},
        {{1, 1, 5, -2}, kNone, {}},
        {{1, 1, NAN, 5}, kNone, {}},
        {{-3e38f, -3e38f, 3.4e38f, 3.4e38f}, kHalf, {0, 0, 32, 32}},
    };
    for (const auto& [rect, offset, expected] : cases)
        EXPECT_EQ(PixelsInside(EdgesOf(rect), offset, kArea), expected) << rect.X << rect.Width;
}

TEST(PixelsInside, Figures) {
    const std::vector<PointF> windsTwice{{1, 1}, {9, 1}, {9, 9}, {3, 9},
                                         {3, 3}, {6, 3}, {6, 6}, {1, 6}};
    const struct {
        const char* Name;
        Path Figure;
        const char *None, *Half;
    } cases[] = {
        {"ellipse 4 x 4", EllipsePath({1, 1, 4, 4}), "2: 2-4; 3: 1-4; 4: 2-4",
         "1: 2-3; 2-3: 1-4; 4: 2-3"},
        {"ellipse 5 x 5", EllipsePath({1, 1, 5, 5}), "2-5: 2-5", "1: 2-4; 2-4: 1-5; 5: 2-4"},
        {"ellipse 10 x 8", EllipsePath({1, 1, 10, 8}),
         "2: 3-9; 3-4: 2-10; 5: 1-10; 6-7: 2-10; 8: 3-9",
         "1: 4-7; 2: 2-9; 3-6: 1-10; 7: 2-9; 8: 4-7"},
        {"triangle", PolygonPath({{1, 1}, {8, 1}, {1, 8}}),
         "1: 1-7; 2: 1-6; 3: 1-5; 4: 1-4; 5: 1-3; 6: 1-2; 7: 1",
         "1: 1-6; 2: 1-5; 3: 1-4; 4: 1-3; 5: 1-2; 6: 1"},
        {"diamond", PolygonPath({{4, 1}, {7, 4}, {4, 7}, {1, 4}}),
         "2: 3-4; 3: 2-5; 4: 1-6; 5: 2-5; 6: 3-4", "1: 3; 2: 2-4; 3-4: 1-5; 5: 2-4; 6: 3"},
        {"overlapping, alternate", PolygonPath(windsTwice), "1-2: 1-8; 3-5: 1-2 6-8; 6-8: 3-8",
         "1-2: 1-8; 3-5: 1-2 6-8; 6-8: 3-8"},
        {"overlapping, winding", PolygonPath(windsTwice, FillMode::Winding), "1-5: 1-8; 6-8: 3-8",
         "1-5: 1-8; 6-8: 3-8"},
        {"cut to the area", testing::RectanglePath({-100, -100, 200, 105}), "0-4: 0-31",
         "0-4: 0-31"},
    };
    for (const auto& [name, figure, none, half] : cases) {
        EXPECT_EQ(Runs(figure, kNone), none) << name;
        EXPECT_EQ(Runs(figure, kHalf), half) << name;
    }
}

// Many of these edges meet rows at whole numbers, where a rounding error would move a pixel from
// one shape to the other.
TEST(PixelsInside, TwoSidesOfAnEdgeMeetWhereExactArithmeticSays) {
    for (int height = 1; height <= 32; ++height) {
        for (int width = 1; width <= 32; ++width) {
            const auto x = static_cast<float>(width), y = static_cast<float>(height);
            std::vector<RectI> left, right;
            for (int row = 0; row < height; ++row) {
                const int edge = (row * width + height - 1) / height;
                if (edge > 0)
                    left.push_back({0, row, edge, 1});
                if (edge < 32)
                    right.push_back({edge, row, 32 - edge, 1});
            }
            const Path triangle = PolygonPath({{0, 0}, {x, y}, {0, y}});
            EXPECT_EQ(PixelsInside(triangle.Flatten(), FillMode::Alternate, kNone, kArea), left);
            const Path rest = PolygonPath({{0, 0}, {32, 0}, {32, y}, {x, y}});
            EXPECT_EQ(PixelsInside(rest.Flatten(), FillMode::Winding, kNone, kArea), right);
        }
    }
}

TEST(PixelsInside, RunsDoNotTouch) {
    Path halves(FillMode::Alternate);
    halves.AddRectangle({1, 1, 3, 1});
    halves.AddRectangle({4, 1, 3, 1});
    const std::vector<RectI> runs = PixelsInside(halves.Flatten(), halves.Fill(), 0, {2, 0, 3, 9});
    EXPECT_EQ(runs, (std::vector<RectI>{{2, 1, 3, 1}}));
}

TEST(PixelsInside, HostileCoordinatesAreHarmless) {
    EXPECT_EQ(Runs(PolygonPath({{-FLT_MAX, -FLT_MAX}, {FLT_MAX, -FLT_MAX}, {0, FLT_MAX}}), 0),
              "0-31: 0-31");
    for (float bad : {INFINITY, -INFINITY, NAN}) {
        Path path = PolygonPath({{0, 0}, {bad, 0}, {8, 8}, {0, 8}});
        path.AddRectangle({2, 2, 2, 1});
        EXPECT_EQ(Runs(path, 0), "2: 2-3");
    }
}

TEST(PixelsInside, ATriangleCoversThePixelsOfThatFigure) {
    std::mt19937 random(1);
    // Quarters, so that corners meet centres and sides lie flat.
    const auto coordinate = [&] { return static_cast<float>(random() % 80) / 4 - 4; };
    const RectI within{1, 2, 12, 9};
    std::vector<RectI> runs;
    for (int i = 0; i < 2000; ++i) {
        const std::array<PointF, 3> corners = {PointF{coordinate(), coordinate()},
                                               {coordinate(), coordinate()},
                                               {coordinate(), coordinate()}};
        const FlatFigure figure{{corners.begin(), corners.end()}, true};
        const double offset = i % 2 == 0 ? 0 : 0.5;
        PixelsInsideTriangle(corners, offset, within, runs);
        ASSERT_EQ(runs, PixelsInside({&figure, 1}, FillMode::Winding, offset, within)) << i;
    }
}

}  // namespace
}  // namespace orbelle::graphics
