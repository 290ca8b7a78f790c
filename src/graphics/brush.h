// What shapes are filled and outlined with.
#pragma once

#include <optional>
#include <variant>

#include "graphics/color.h"
#include "graphics/detail/path_gradient.h"
#include "graphics/enums.h"
#include "graphics/geometry.h"

namespace orbelle::graphics {

struct SolidBrush {
    Argb Color = 0;
};

// Color1 at the rectangle's left (or top) edge, Color2 at its right (or bottom) edge, interpolated
// premultiplied at each pixel's centre; mirrored again and again outside the rectangle.
struct LinearGradientBrush {
    RectF Rect;
    Argb Color1 = 0;
    Argb Color2 = 0;
    LinearGradientMode Mode = LinearGradientMode::Horizontal;

    // The straight colour at a point, in the coordinates of Rect.
    Argb ColorAt(double x, double y) const;
};

using Brush = std::variant<SolidBrush, LinearGradientBrush, PathGradientBrush>;

// No brush when the rectangle's width or height is 0.
std::optional<LinearGradientBrush> CreateLineBrushFromRect(const RectF& rect, Argb color1,
                                                           Argb color2, LinearGradientMode mode);

// Centred on the outline, mitred, flat ends; the width in pixels.
struct Pen {
    Brush Fill;
    float Width = 1;
};

}  // namespace orbelle::graphics
