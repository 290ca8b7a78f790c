// The measures of the strip of sizes, logical pixels.
#pragma once

#include "widgets/theme.h"

namespace orbelle::widgets::strip_metrics {

inline constexpr int kStart = 4;    // before the first cell and after the last
inline constexpr int kMargin = 10;  // around a picture
inline constexpr double kLabelPoints = 8;

// Below the ground.
inline int LabelHeight() {
    return HeightFor(20, kLabelPoints);
}
inline constexpr int kLabelWidth = 40;  // with a mark on either side of the number
inline constexpr int kMarkSize = 8;

}  // namespace orbelle::widgets::strip_metrics
