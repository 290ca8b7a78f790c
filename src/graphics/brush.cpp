#include "graphics/brush.h"

#include <cmath>

#include "graphics/detail/gradient_mix.h"

namespace orbelle::graphics {
namespace {

// Brings a position along the gradient back to 0 to 1.
double Wrapped(double t, WrapMode wrap) {
    if (!std::isfinite(t))
        return 0;
    if (wrap == WrapMode::Tile)
        return t - std::floor(t);
    const double inPair = t - 2 * std::floor(t / 2);
    return inPair > 1 ? 2 - inPair : inPair;
}

}  // namespace

Argb LinearGradientBrush::ColorAt(double x, double y) const {
    const double t = Wrapped(Mode == LinearGradientMode::Horizontal ? (x - Rect.X) / Rect.Width
                                                                    : (y - Rect.Y) / Rect.Height,
                             Wrap);
    return MixPremultiplied(Color1, Color2, t);
}

std::optional<LinearGradientBrush> CreateLineBrushFromRect(const RectF& rect, Argb color1,
                                                           Argb color2, LinearGradientMode mode,
                                                           WrapMode wrap) {
    if (rect.Width == 0 || rect.Height == 0)
        return std::nullopt;
    return LinearGradientBrush{rect, color1, color2, mode, wrap};
}

}  // namespace orbelle::graphics
