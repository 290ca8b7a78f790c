#include "filters/erasers.h"

#include "filters/falloff.h"
#include "filters/rounding.h"
#include "graphics/geometry.h"

namespace orbelle::filters {

using graphics::AlphaOf;
using graphics::Argb;
using graphics::SetAlphaByte;

void EraseColor(graphics::Bitmap& image, int x, int y) {
    if (const auto color = image.GetPixel(x, y))
        image.SetPixel(x, y, SetAlphaByte(*color, 0));
}

void EraseTool(graphics::Bitmap& image, int x, int y, int size, int level) {
    const double most = level * 5.0;
    const Falloff brush{x, y, x, y, graphics::RoundToEven(size * 0.5 + size)};
    brush.Apply(image, [most](Argb& pixel, double strength) {
        pixel = SetAlphaByte(pixel, RoundToByte(AlphaOf(pixel) - strength * most));
    });
}

}  // namespace orbelle::filters
