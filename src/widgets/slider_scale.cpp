#include "widgets/slider_scale.h"

#include <algorithm>
#include <cmath>

namespace orbelle::widgets {

namespace {

constexpr int kTenthsReach = 10;
// From the left edge of the thumb to the pixel that marks the value.
constexpr double kThumbMark = 7;

}  // namespace

double SliderScale::ValuePerPixel() const {
    // Tenths reach no further than 10, so that larger ranges, such as page sizes and line widths,
    // are spread over the whole track (docs/oddities.md, "Tenths up to 10").
    return MaxValue <= kTenthsReach ? 0.1 : MaxValue / double{kTrackTravel};
}

SliderScale::Drag SliderScale::DragTo(double x) const {
    const double value = std::nearbyint(x * ValuePerPixel());
    if (value > MaxValue)
        return {MaxValue, kTrackTravel};
    if (value < 0)
        return {0, 0};
    return {static_cast<int>(value), PlaceFromValue(static_cast<int>(value))};
}

double SliderScale::PlaceFromValue(int value) const {
    return std::clamp(value / ValuePerPixel() - kThumbMark, 0.0, double{kTrackTravel});
}

}  // namespace orbelle::widgets
