#include "filters/shrink_to_size.h"

#include <cmath>

#include "graphics/drawing_context.h"

namespace orbelle::filters {

using namespace graphics;

Bitmap ShrinkToSize(const Bitmap& picture, int size) {
    Bitmap square(size, size);
    DrawingContext context(square);
    context.SetInterpolationMode(InterpolationMode::HighQuality);
    const SizeF box{static_cast<float>(size), static_cast<float>(size)};
    const SizeF fitted = FitIntoBox(
        {static_cast<float>(picture.Width()), static_cast<float>(picture.Height())}, box);
    const SizeF whole{std::nearbyint(fitted.Width), std::nearbyint(fitted.Height)};
    context.DrawImageRect(picture, CenterInBox(whole, box));
    return square;
}

}  // namespace orbelle::filters
