#include "filters/state_looks.h"

#include "graphics/drawing_context.h"

namespace orbelle::filters {
namespace {

void Redraw(graphics::Bitmap& image, int width, int height,
            const graphics::ImageAttributes& attributes) {
    graphics::Bitmap redrawn(width, height);
    if (image.IsEmpty() || redrawn.IsEmpty())
        return;
    const graphics::RectI area = {0, 0, width, height};
    graphics::DrawingContext(redrawn).DrawImageRectRectI(image, area, area, attributes);
    image = redrawn;
}

}  // namespace

void DisabledStyle(graphics::Bitmap& image, int width, int height) {
    constexpr float kShare = 0.3F;
    constexpr graphics::ColorMatrix kGrey = {{{kShare, kShare, kShare, 0, 0},
                                              {kShare, kShare, kShare, 0, 0},
                                              {kShare, kShare, kShare, 0, 0},
                                              {0, 0, 0, 1, 0},
                                              {0, 0, 0, 0, 1}}};
    Redraw(image, width, height, {.Matrix = kGrey});
}

void HotStyle(graphics::Bitmap& image, int width, int height, float gamma) {
    Redraw(image, width, height, {.Gamma = gamma});
}

}  // namespace orbelle::filters
