#include "graphics/brush.h"

#include <cmath>

#include "graphics/detail/gradient_mix.h"

namespace orbelle::graphics {
namespace {

// Brings a position along the gradient back to 0 to 1.
double Mirrored(double t) {
    if (!std::isfinite(t))
        return 0;
    const double inPair = t - 2 * std::floor(t / 2);
    return inPair > 1 ? 2 - inPair : inPair;
}

}  // namespace

Argb LinearGradientBrush::ColorAt(double x, double y) const {
    const double t = Mirrored(Mode == LinearGradientMode::Horizontal ? (x - Rect.X) / Rect.Width
                                                                     : (y - Rect.Y) / Rect.Height);
    return MixPremultiplied(Color1, Color2, t);
}

std::optional<LinearGradientBrush> CreateLineBrushFromRect(const RectF& rect, Argb color1,
                                                           Argb color2, LinearGradientMode mode) {
    if (rect.Width == 0 || rect.Height == 0)
        return std::nullopt;
    return LinearGradientBrush{rect, color1, color2, mode};
}

}  // namespace orbelle::graphics
