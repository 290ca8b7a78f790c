#include "filters/shrink_to_size.h"

#include <algorithm>
#include <cmath>

#include "graphics/drawing_context.h"

namespace orbelle::filters {

using namespace graphics;

namespace {

SizeF SizeOf(const Bitmap& picture) {
    return {static_cast<float>(picture.Width()), static_cast<float>(picture.Height())};
}

SizeF SquareOf(int size) {
    return {static_cast<float>(size), static_cast<float>(size)};
}

SizeF WholePixels(SizeF size) {
    return {std::nearbyint(size.Width), std::nearbyint(size.Height)};
}

Bitmap Scaled(const Bitmap& picture, SizeF surface, const RectF& place) {
    Bitmap scaled(static_cast<int>(surface.Width), static_cast<int>(surface.Height));
    DrawingContext context(scaled);
    context.SetInterpolationMode(InterpolationMode::HighQuality);
    context.DrawImageRect(picture, place);
    return scaled;
}

// What the larger side makes of both.
SizeF SizeBySide(const Bitmap& picture, int side) {
    const SizeF size = SizeOf(picture);
    const float longer = std::max(size.Width, size.Height);
    if (longer >= static_cast<float>(side))
        return WholePixels(FitIntoBox(size, SquareOf(side)));
    const float ratio = static_cast<float>(side) / longer;
    return WholePixels({ratio * size.Width, ratio * size.Height});
}

}  // namespace

RectF PlaceOfShrunk(int width, int height, int size) {
    const SizeF box = SquareOf(size);
    const SizeF picture{static_cast<float>(width), static_cast<float>(height)};
    return CenterInBox(WholePixels(FitIntoBox(picture, box)), box);
}

Bitmap ShrinkToSize(const Bitmap& picture, int size) {
    return Scaled(picture, SquareOf(size), PlaceOfShrunk(picture.Width(), picture.Height(), size));
}

Bitmap ScaleToSize(const Bitmap& picture, int size) {
    const SizeF box = SquareOf(size);
    return Scaled(picture, box, CenterInBox(SizeBySide(picture, size), box));
}

Bitmap ScaleToSide(const Bitmap& picture, int side) {
    SizeF size = SizeBySide(picture, side);
    size = {std::max(size.Width, 1.0F), std::max(size.Height, 1.0F)};
    return Scaled(picture, size, {0, 0, size.Width, size.Height});
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
