// The slider adjustments: hue, saturation, brightness with contrast. All change the picture in
// place, transparent pixels like any other, and keep alpha. On an empty picture nothing happens.
#pragma once

#include "graphics/bitmap.h"

namespace orbelle::filters {

// Turns the hue by `hue` of 350, limited to 0..350; 0 leaves the picture as it is. No true
// rotation: each seventh of the range exchanges the channels and mixes two of them
// (docs/oddities.md, "Hue in sevenths").
void HueColor(graphics::Bitmap& image, float hue);

// Hundredths: -100 pulls every colour to its average grey, 0 leaves it, above pushes it away.
void SaturationColor(graphics::Bitmap& image, int level);

// (c - 128) contrast + 128 + brightness, rounded to nearest (ties to even), limited to 0..255.
void BrightnessColor(graphics::Bitmap& image, double contrast, double brightness);

}  // namespace orbelle::filters
