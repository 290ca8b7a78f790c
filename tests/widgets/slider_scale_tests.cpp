#include "widgets/slider_scale.h"

#include <gtest/gtest.h>

#include <climits>

namespace orbelle::widgets {
namespace {

TEST(SliderScaleTest, DragsByTenthsUpToTenAndElseOverTheWholeTrack) {
    const struct {
        int MaxValue;
        double X;
        int Value;
        double Place;
    } cases[] = {
        {10, 50, 5, 43},    {10, 100, 10, 93},   {10, 5, 0, 0},        {10, 15, 2, 13},
        {10, 25, 2, 13},  // ties go to the even value
        {5, 50, 5, 43},     {5, 56, 5, 100},     {11, 100, 11, 93},    {200, 25, 50, 18},
        {255, 40, 102, 33}, {255, 100, 255, 93}, {255, 101, 255, 100}, {255, 900, 255, 100},
        {255, -1, 0, 0},    {512, 50, 256, 43},
    };
    for (const auto& c : cases) {
        const SliderScale::Drag drag = SliderScale{c.MaxValue}.DragTo(c.X);
        EXPECT_EQ(drag.Value, c.Value) << c.MaxValue << " at " << c.X;
        EXPECT_NEAR(drag.Place, c.Place, 1e-9) << c.MaxValue << " at " << c.X;
    }
}

TEST(SliderScaleTest, PlacesStayOnTheTrack) {
    const struct {
        int MaxValue, Value;
        double Place;
    } cases[] = {{255, 51, 13}, {255, 0, 0},        {255, 300, 100}, {255, INT_MIN, 0},
                 {10, 3, 23},   {10, INT_MAX, 100}, {0, 0, 0},       {INT_MAX, INT_MAX, 93}};
    for (const auto& [maxValue, value, place] : cases)
        EXPECT_NEAR(SliderScale{maxValue}.PlaceFromValue(value), place, 1e-9)
            << value << " of " << maxValue;
}

}  // namespace
}  // namespace orbelle::widgets
