// Scaled and unscaled drawing of pictures: the sampling behind the image calls of DrawingContext.
#pragma once

#include <span>

#include "graphics/bitmap.h"
#include "graphics/enums.h"
#include "graphics/geometry.h"
#include "graphics/image_attributes.h"

namespace orbelle::graphics {

struct ImageDrawing {
    RectF Destination;  // target pixels
    RectI Source;       // picture pixels; what lies outside the picture is transparent black
    InterpolationMode Interpolation = InterpolationMode::Default;
    double Offset = 0;  // 0 or 0.5: where a pixel's centre lies within it
    ImageAttributes Attributes;
};

// Blends the picture over the target within the clip, whose rectangles lie inside the target, do
// not overlap and come by y and then x. A destination or source without area, or with infinite or
// not-a-number bounds, draws nothing. Costs time in proportion to the clipped area (and, in the
// smooth modes, the part of the source that it needs).
void DrawImageOn(Bitmap& target, const Bitmap& image, const ImageDrawing& drawing,
                 std::span<const RectI> clip);

// The same for several pictures, one over the other.
void DrawImagesOn(Bitmap& target, std::span<const Bitmap> images,
                  std::span<const ImageDrawing> drawings, std::span<const RectI> clip);

}  // namespace orbelle::graphics
