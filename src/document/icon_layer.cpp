#include "document/icon_layer.h"

namespace orbelle::document {

void ResetLayerAdjust(IconLayer& layer) {
    layer.Hue = 0;
    layer.Contrast = 50;
    layer.Brightness = 50;
    layer.Saturation = 40;
}

}  // namespace orbelle::document
