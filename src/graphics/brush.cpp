#include "graphics/brush.h"

#include <cmath>

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

unsigned Rounded(double channel) {
    return static_cast<unsigned>(std::floor(channel + 0.5));
}

}  // namespace

Argb LinearGradientBrush::ColorAt(double x, double y) const {
    const double t = Wrapped(Mode == LinearGradientMode::Horizontal ? (x - Rect.X) / Rect.Width
                                                                    : (y - Rect.Y) / Rect.Height,
                             Wrap);
    const double weight1 = (1 - t) * AlphaOf(Color1);
    const double weight2 = t * AlphaOf(Color2);
    const double alpha = weight1 + weight2;
    if (alpha <= 0)
        return 0;
    const auto mix = [&](unsigned channel1, unsigned channel2) {
        return Rounded((weight1 * channel1 + weight2 * channel2) / alpha);
    };
    return MakeARGB(Rounded(alpha), mix(RedOf(Color1), RedOf(Color2)),
                    mix(GreenOf(Color1), GreenOf(Color2)), mix(BlueOf(Color1), BlueOf(Color2)));
}

std::optional<LinearGradientBrush> CreateLineBrushFromRect(const RectF& rect, Argb color1,
                                                           Argb color2, LinearGradientMode mode,
                                                           WrapMode wrap) {
    if (rect.Width == 0 || rect.Height == 0)
        return std::nullopt;
    return LinearGradientBrush{rect, color1, color2, mode, wrap};
}

}  // namespace orbelle::graphics
