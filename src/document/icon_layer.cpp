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

void PlaceAt(IconLayer& layer, const graphics::RectI& area) {
    layer.Rect = {static_cast<float>(area.X), static_cast<float>(area.Y),
                  static_cast<float>(area.Width), static_cast<float>(area.Height)};
    layer.ImageWidth = area.Width;
    layer.ImageHeight = area.Height;
}

void ResetLayerAdjust(IconLayer& layer) {
    layer.Hue = kNeutralHue;
    layer.Contrast = kNeutralContrast;
    layer.Brightness = kNeutralBrightness;
    layer.Saturation = kNeutralSaturation;
}

}  // namespace orbelle::document
