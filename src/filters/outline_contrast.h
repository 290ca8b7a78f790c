// How well the outline of a picture stands out from the ground that it lies on.
#pragma once

#include <optional>

#include "graphics/bitmap.h"
#include "graphics/color.h"

namespace orbelle::filters {

// Of a graphical object, by the web's guidelines for accessible content (WCAG 2.1, 1.4.11).
inline constexpr double kLeastContrast = 3;

// The grounds that icons are judged on.
inline constexpr graphics::Argb kLightGround = 0xFFFFFFFF;
inline constexpr graphics::Argb kDarkGround = 0xFF202020;

// The contrast ratio of two opaque colours, 1 to 21: (lighter + 0.05) / (darker + 0.05) of their
// relative luminances. Alpha does not count.
double ContrastRatio(graphics::Argb first, graphics::Argb second);

// A rim that light or dark pixels just inside it set off can be seen well enough from this.
inline constexpr double kLeastRimContrast = 2;
inline constexpr int kRimWidth = 2;  // pixels, across and down

// The median of the contrast ratios to the ground over all pixels of the outline, by their straight
// colours; of an even number the mean of the middle two. The outline are the pixels of alpha 128
// and more that have one of less, or the picture's edge, above, below, left or right of them. None:
// there is no outline.
std::optional<double> OutlineContrast(const graphics::Bitmap& picture, graphics::Argb ground);

// The same where each pixel of the outline counts with the highest ratio of the pixels of alpha 128
// and more that are at most kRimWidth away both across and down: a dark line around a light body
// is seen on dark, too.
std::optional<double> RimContrast(const graphics::Bitmap& picture, graphics::Argb ground);

}  // namespace orbelle::filters
