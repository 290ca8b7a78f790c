#include "graphics/detail/image_drawing.h"
#include "graphics/drawing_context.h"

namespace orbelle::graphics {

void DrawingContext::DrawImage(const Bitmap& image, float x, float y) {
    DrawImageRect(image,
                  {x, y, static_cast<float>(image.Width()), static_cast<float>(image.Height())});
}

void DrawingContext::DrawImageRect(const Bitmap& image, const RectF& dest) {
    DrawImageOn(target_, image,
                {.Destination = dest,
                 .Source = {0, 0, image.Width(), image.Height()},
                 .Interpolation = interpolation_,
                 .Offset = Offset(),
                 .Attributes = {}},
                clip_.Rects({0, 0, target_.Width(), target_.Height()}));
}

void DrawingContext::DrawImageRectRectI(const Bitmap& image, const RectI& dest, const RectI& source,
                                        const ImageAttributes& attributes) {
    DrawImageOn(target_, image,
                {.Destination = {static_cast<float>(dest.X), static_cast<float>(dest.Y),
                                 static_cast<float>(dest.Width), static_cast<float>(dest.Height)},
                 .Source = source,
                 .Interpolation = interpolation_,
                 .Offset = Offset(),
                 .Attributes = attributes},
                clip_.Rects({0, 0, target_.Width(), target_.Height()}));
}

}  // namespace orbelle::graphics
