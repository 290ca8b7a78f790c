#include "widgets/slider_scale.h"

#include <algorithm>
#include <cmath>

namespace orbelle::widgets {

namespace {

constexpr int kTenthsReach = 10;
// From the left edge of the thumb to the pixel that marks the value.
constexpr double kThumbMark = 7;

}  // namespace

int SliderScale::LimitValue() const {
    switch (Style) {
        case 0:
            return std::max(MaxValue, 0);
        case 1:
            return 255;
        case 2:
            return 180;
        default:
            return 100;
    }
}

double SliderScale::ValuePerPixel() const {
    // Deliberate: tenths reach no further than 10, so that larger ranges of style 0, such as page
    // sizes and line widths, are spread over the whole track.
    if (Style == 0 && MaxValue <= kTenthsReach)
        return 0.1;
    return LimitValue() / double{kTrackTravel};
}

SliderScale::Drag SliderScale::DragTo(double x) const {
    const double value = std::nearbyint(x * ValuePerPixel());
    if (value > LimitValue())
        return {LimitValue(), kTrackTravel};
    if (value < 0)
        return {0, 0};
    return {static_cast<int>(value), PlaceFromValue(static_cast<int>(value))};
}

double SliderScale::PlaceFromValue(int value) const {
    return std::clamp(value / ValuePerPixel() - kThumbMark, 0.0, double{kTrackTravel});
}

}  // namespace orbelle::widgets
