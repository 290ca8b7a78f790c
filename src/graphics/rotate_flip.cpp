#include "graphics/rotate_flip.h"

#include <algorithm>

namespace orbelle::graphics {
namespace {

void MirrorRows(Bitmap& image) {
    Argb* row = image.MutablePixels();
    for (int y = 0; y < image.Height(); ++y, row += image.Width())
        std::reverse(row, row + image.Width());
}

void ReverseRowOrder(Bitmap& image) {
    Argb* pixels = image.MutablePixels();
    const auto width = static_cast<std::size_t>(image.Width());
    for (int top = 0, bottom = image.Height() - 1; top < bottom; ++top, --bottom)
        std::swap_ranges(pixels + top * width, pixels + (top + 1) * width, pixels + bottom * width);
}

Bitmap Transposed(const Bitmap& image) {
    // Squares of pixels, so that the rows read and the rows written stay in the cache.
    constexpr int kSquare = 16;
    const int width = image.Width(), height = image.Height();
    Bitmap result(height, width, image.Format());
    const Argb* from = image.Pixels();
    Argb* to = result.MutablePixels();
    for (int top = 0; top < height; top += kSquare) {
        const int bottom = std::min(top + kSquare, height);
        for (int left = 0; left < width; left += kSquare) {
            const int right = std::min(left + kSquare, width);
            for (int x = left; x < right; ++x) {
                for (int y = top; y < bottom; ++y)
                    to[std::size_t(x) * height + y] = from[std::size_t(y) * width + x];
            }
        }
    }
    return result;
}

}  // namespace

void ImageRotateFlip(Bitmap& image, RotateFlipType type) {
    switch (type) {
        case RotateFlipType::Rotate90FlipNone:
            image = Transposed(image);
            MirrorRows(image);
            break;
        case RotateFlipType::RotateNoneFlipX:
            MirrorRows(image);
            break;
        case RotateFlipType::Rotate90FlipX:
            image = Transposed(image);
            break;
        case RotateFlipType::RotateNoneFlipY:
            ReverseRowOrder(image);
            break;
    }
}

}  // namespace orbelle::graphics
