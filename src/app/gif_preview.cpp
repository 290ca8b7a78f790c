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

void DrawPreviewChecker(graphics::DrawingContext& context, int boxWidth, int boxHeight) {
    constexpr int kCell = 5;
    const graphics::SolidBrush brush{graphics::MakeARGB(20, 0, 0, 0)};
    int start = kCell;
    for (int y = 0; y <= boxHeight - kCell; y += kCell) {
        for (int x = start; x <= boxWidth - kCell; x += 2 * kCell)
            context.FillRectangle(brush,
                                  {static_cast<float>(x), static_cast<float>(y), kCell, kCell});
        start = kCell - start;
    }
}

void DrawGifPreview(graphics::DrawingContext& context, const graphics::Bitmap& surface,
                    int boxWidth, int boxHeight, std::uint8_t threshold) {
    const auto indexed =
        formats::PaletteImageGIF(formats::FlattenToKeyColor(surface, threshold), true);
    context.DrawImageRect(indexed.ToBitmap(), PreviewRect(surface, boxWidth, boxHeight));
}

}  // namespace orbelle::app
