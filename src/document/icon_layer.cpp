#include "document/icon_layer.h"

#include <cmath>

namespace orbelle::document {
namespace {

int Truncate(float value) {
    if (!(std::abs(value) < 1e9F))
        return value > 0 ? 1'000'000'000 : value < 0 ? -1'000'000'000 : 0;
    return static_cast<int>(value);
}

}  // namespace

graphics::RectI DrawnArea(const graphics::RectF& rect) {
    return {Truncate(rect.X), Truncate(rect.Y), Truncate(rect.Width), Truncate(rect.Height)};
}

void ResetLayerAdjust(IconLayer& layer) {
    layer.Hue = 0;
    layer.Contrast = 50;
    layer.Brightness = 50;
    layer.Saturation = 40;
}

}  // namespace orbelle::document
