#include "editing/tools/mirror.h"

#include <algorithm>
#include <vector>

#include "graphics/drawing_context.h"
#include "graphics/rotate_flip.h"

namespace orbelle::editing {

using graphics::Argb;
using graphics::Bitmap;
using graphics::PointF;

namespace {

// The mark itself, then its images.
std::vector<MirrorAxes> ImagesOf(const MirrorAxes& axes) {
    std::vector<MirrorAxes> images{{}};
    if (axes.LeftRight)
        images.push_back({true, false});
    if (axes.TopBottom)
        images.push_back({false, true});
    if (axes.LeftRight && axes.TopBottom)
        images.push_back({true, true});
    return images;
}

// Layer pixel p along one side is mirrored to this less p.
int PlaceSum(int page, int layer) {
    return page - 1 - 2 * layer;
}

PointF Mirrored(const Editor& editor, const MirrorAxes& image, PointF at) {
    const graphics::RectI layer = document::DrawnArea(editor.Page().Selected().Rect);
    if (image.LeftRight)
        at.X = static_cast<float>(PlaceSum(editor.Page().Width, layer.X)) - at.X;
    if (image.TopBottom)
        at.Y = static_cast<float>(PlaceSum(editor.Page().Height, layer.Y)) - at.Y;
    return at;
}

void Turn(Bitmap& picture, const MirrorAxes& image) {
    if (image.LeftRight)
        ImageRotateFlip(picture, graphics::RotateFlipType::RotateNoneFlipX);
    if (image.TopBottom)
        ImageRotateFlip(picture, graphics::RotateFlipType::RotateNoneFlipY);
}

// Pixel for pixel the one that `isBetter` prefers; both pictures are of one size.
template <typename IsBetter>
void Choose(Bitmap& picture, const Bitmap& other, IsBetter isBetter) {
    const std::size_t count = static_cast<std::size_t>(picture.Width()) * picture.Height();
    Argb* pixels = picture.MutablePixels();
    const Argb* others = other.Pixels();
    for (std::size_t i = 0; i < count; ++i)
        if (isBetter(others[i], pixels[i]))
            pixels[i] = others[i];
}

}  // namespace

void DrawMirrored(const Editor& editor, Bitmap& image,
                  const std::function<void(Bitmap&, PointF origin)>& draw) {
    if (image.IsEmpty())
        return;
    Bitmap marks(image.Width(), image.Height());
    for (const MirrorAxes& axes : ImagesOf(editor.Tools.Mirror)) {
        // The picture's corner, seen in the mirror, is its other one.
        const PointF corner{axes.LeftRight ? static_cast<float>(image.Width() - 1) : 0,
                            axes.TopBottom ? static_cast<float>(image.Height() - 1) : 0};
        Bitmap mark(image.Width(), image.Height());
        draw(mark, Mirrored(editor, axes, corner));
        Turn(mark, axes);
        // Of equal strength any will do that does not depend on which of them is the image.
        Choose(marks, mark, [](Argb one, Argb other) { return one > other; });
    }
    graphics::DrawingContext context(image);
    context.SetInterpolationMode(graphics::InterpolationMode::NearestNeighbor);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.DrawImage(marks, 0, 0);
}

void EraseMirrored(const Editor& editor, Bitmap& image, PointF at,
                   const std::function<void(Bitmap&, int x, int y)>& erase) {
    const Bitmap before = image;
    for (const MirrorAxes& axes : ImagesOf(editor.Tools.Mirror)) {
        const PointF place = Mirrored(editor, axes, at);
        Bitmap erased = before;
        erase(erased, graphics::RoundToEven(place.X), graphics::RoundToEven(place.Y));
        if (image.SharesPixelsWith(before))
            image = erased;
        else
            Choose(image, erased, [](Argb one, Argb other) { return one < other; });
    }
}

}  // namespace orbelle::editing
