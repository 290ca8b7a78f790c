#include "app/gif_preview.h"

#include <algorithm>

#include "formats/gif_palette.h"

namespace orbelle::app {

graphics::RectF PreviewRect(const graphics::Bitmap& image, int boxWidth, int boxHeight) {
    const graphics::SizeF box{static_cast<float>(boxWidth), static_cast<float>(boxHeight)};
    return CenterInBox({std::min(box.Width, static_cast<float>(image.Width())),
                        std::min(box.Height, static_cast<float>(image.Height()))},
                       box);
}

void DrawGifPreview(graphics::DrawingContext& context, const graphics::Bitmap& surface,
                    int boxWidth, int boxHeight, std::uint8_t threshold) {
    const auto indexed =
        formats::PaletteImageGif(formats::FlattenToKeyColor(surface, threshold), true);
    context.DrawImageRect(indexed.ToBitmap(), PreviewRect(surface, boxWidth, boxHeight));
}

}  // namespace orbelle::app
