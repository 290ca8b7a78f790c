#include "graphics/geometry.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <tuple>

namespace orbelle::graphics {

// For messages of failed tests.
static void PrintTo(const RectI& rect, std::ostream* out) {
    *out << rect.X << ", " << rect.Y << ", " << rect.Width << " x " << rect.Height;
}

namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

TEST(Geometry, RoundsToTheNearestAndHoldsAtTheEndsOfInt) {
    const std::tuple<double, int, int> cases[] = {
        {0.5, 0, 1},
        {1.5, 2, 2},
        {2.5, 2, 3},
        {-0.5, 0, 0},
        {-1.5, -2, -1},
        {-2.5, -2, -2},
        {2.4999, 2, 2},
        {0.49999999999999994, 0, 1},
        {NAN, 0, 0},
        {1e300, kHighest, kHighest},
        {INFINITY, kHighest, kHighest},
        {-1e300, kLowest, kLowest},
    };
    for (const auto& [value, toEven, halfUp] : cases) {
        EXPECT_EQ(RoundToEven(value), toEven) << value;
        EXPECT_EQ(RoundHalfUp(value), halfUp) << value;
    }
}

TEST(Geometry, IntersectsAndUnites) {
    const struct {
        RectI A, B, Both, Around;
    } cases[] = {
        {{0, 0, 4, 4}, {2, 3, 5, 6}, {2, 3, 2, 1}, {0, 0, 7, 9}},
        {{0, 0, 4, 4}, {4, 0, 4, 4}, {}, {0, 0, 8, 4}},
        {{-3, -3, 2, 2}, {5, 6, 1, 1}, {}, {-3, -3, 9, 10}},
        {{1, 2, 3, 4}, {9, 9, 0, 5}, {}, {1, 2, 3, 4}},
        {{1, 2, 3, 4}, {0, 0, 9, -5}, {}, {1, 2, 3, 4}},
        // At the ends of int.
        {{kHighest, 0, kHighest, 9}, {0, 0, 4, 4}, {}, {0, 0, kHighest, 9}},
        {{kLowest, 0, kHighest, 9}, {-2, 0, 9, 9}, {-2, 0, 1, 9}, {kLowest, 0, kHighest, 9}},
        {{kLowest, 0, 1, 1}, {kHighest, 0, 1, 1}, {}, {kLowest, 0, kHighest, 1}},
    };
    for (const auto& [a, b, both, around] : cases) {
        EXPECT_EQ(Intersect(a, b), both);
        EXPECT_EQ(Intersect(b, a), both);
        EXPECT_EQ(Unite(a, b), around);
        EXPECT_EQ(BoxAround(std::array{b, RectI{}, a}), around);
    }
}

TEST(Geometry, PicturesAreShrunkToTheSideThatBindsAndCentred) {
    const struct {
        SizeF Picture, Box;
        RectF Place;
    } cases[] = {
        {{512, 100}, {256, 256}, {0, 103, 256, 50}},  {{13, 16}, {16, 16}, {1, 0, 13, 16}},
        {{100, 160}, {100, 160}, {0, 0, 100, 160}},   {{47, 45}, {100, 160}, {26, 57, 47, 45}},
        {{200, 25}, {100, 160}, {0, 74, 100, 12.5F}}, {{25, 320}, {100, 160}, {44, 0, 12.5F, 160}},
    };
    for (const auto& [picture, box, place] : cases)
        EXPECT_EQ(CenterInBox(FitIntoBox(picture, box), box), place) << place.X << ", " << place.Y;
}

}  // namespace
}  // namespace orbelle::graphics
