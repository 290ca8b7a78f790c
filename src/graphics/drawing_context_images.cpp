#include <vector>

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
    const ImageToDraw one{image, dest, source, attributes};
    DrawImages({&one, 1});
}

void DrawingContext::DrawImages(std::span<const ImageToDraw> images) {
    std::vector<Bitmap> pictures;
    std::vector<ImageDrawing> drawings;
    for (const ImageToDraw& image : images) {
        const RectI& dest = image.Destination;
        pictures.push_back(image.Image);
        drawings.push_back({{static_cast<float>(dest.X), static_cast<float>(dest.Y),
                             static_cast<float>(dest.Width), static_cast<float>(dest.Height)},
                            image.Source,
                            interpolation_,
                            Offset(),
                            image.Attributes});
    }
    DrawImagesOn(target_, pictures, drawings,
                 clip_.Rects({0, 0, target_.Width(), target_.Height()}));
}

}  // namespace orbelle::graphics
