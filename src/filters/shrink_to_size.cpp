#include "filters/shrink_to_size.h"

#include <algorithm>
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

Bitmap ShrinkIntoBox(const Bitmap& picture, int width, int height) {
    if (picture.Width() <= width && picture.Height() <= height)
        return picture;
    const SizeF fitted =
        FitIntoBox({static_cast<float>(picture.Width()), static_cast<float>(picture.Height())},
                   {static_cast<float>(width), static_cast<float>(height)});
    Bitmap shrunk(std::max(RoundToEven(fitted.Width), 1), std::max(RoundToEven(fitted.Height), 1));
    DrawingContext context(shrunk);
    context.SetInterpolationMode(InterpolationMode::HighQuality);
    context.DrawImageRect(
        picture, {0, 0, static_cast<float>(shrunk.Width()), static_cast<float>(shrunk.Height())});
    return shrunk;
}

}  // namespace orbelle::filters
