// Sizes of LayerList, logical pixels.
#pragma once

namespace orbelle::widgets {

inline constexpr int kLayerRowHeight = 40;
inline constexpr int kLayerThumbnail = 32;
inline constexpr int kLayerEyeWidth = 32;  // at the right of a row

}  // namespace orbelle::widgets
