#include "widgets/slider_scale.h"

#include <gtest/gtest.h>

#include <climits>

namespace orbelle::widgets {
namespace {

TEST(SliderScaleTest, DragsByTheScaleOfTheStyle) {
    const struct {
        SliderScale scale;
        double x;
        int value;
        double place;
    } cases[] = {
        {{0, 10}, 50, 5, 43},      {{0, 10}, 100, 10, 93},    {{0, 5}, 50, 5, 43},
        {{0, 5}, 56, 5, 100},      {{1, 255}, 40, 102, 33},   {{1, 255}, 100, 255, 93},
        {{1, 255}, 101, 255, 100}, {{1, 255}, 900, 255, 100}, {{1, 150}, 100, 255, 93},
        {{1, 255}, -1, 0, 0},      {{2, 180}, 50, 90, 43},    {{2, 180}, 101, 180, 100},
        {{3, 255}, 70, 70, 63},    {{3, 255}, 101, 100, 100}, {{0, 512}, 50, 256, 43},
        {{0, 512}, 100, 512, 93},  {{0, 512}, 101, 512, 100}, {{0, 200}, 25, 50, 18},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message()
                     << "style " << c.scale.Style << " to " << c.scale.MaxValue << " at " << c.x);
        const SliderScale::Drag drag = c.scale.DragTo(c.x);
        EXPECT_EQ(drag.Value, c.value);
        EXPECT_NEAR(drag.Place, c.place, 1e-9);
    }
}

TEST(SliderScaleTest, RoundsTiesToTheEvenValue) {
    const SliderScale tenths{0, 10};
    EXPECT_EQ(tenths.DragTo(5).Value, 0);
    EXPECT_EQ(tenths.DragTo(15).Value, 2);
    EXPECT_EQ(tenths.DragTo(25).Value, 2);
}

TEST(SliderScaleTest, PlacesStayOnTheTrack) {
    const struct {
        SliderScale scale;
        int value;
        double place;
    } cases[] = {
        {{1, 255}, 255, 93},  {{1, 255}, 51, 13},     {{1, 255}, 0, 0},
        {{1, 255}, 300, 100}, {{1, 255}, INT_MIN, 0}, {{2, 180}, 90, 43},
        {{3, 100}, 57, 50},   {{0, 10}, 3, 23},       {{0, 10}, INT_MAX, 100},
        {{0, 512}, 128, 18},  {{0, 0}, 0, 0},         {{0, INT_MAX}, INT_MAX, 93},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(c.scale.PlaceFromValue(c.value), c.place, 1e-9)
            << "style " << c.scale.Style << " to " << c.scale.MaxValue << ": " << c.value;
}

}  // namespace
}  // namespace orbelle::widgets
