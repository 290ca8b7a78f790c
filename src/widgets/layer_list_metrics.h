// Sizes of LayerList, logical pixels.
#pragma once

#include <algorithm>

#include "widgets/theme.h"

namespace orbelle::widgets {

// Of two lines of text.
inline int LayerRowHeight() {
    return std::max(40, 2 * HeightFor(0) - 4);
}
inline constexpr int kLayerThumbnail = 32;
inline constexpr int kLayerEyeWidth = 32;  // at the right of a row

}  // namespace orbelle::widgets
