#include "graphics/pixel_mask.h"

#include <algorithm>
#include <bit>

namespace orbelle::graphics {

PixelMask::PixelMask(const Bitmap& image, int level, int x, int y)
    : box_{x, y, image.Width(), image.Height()},
      wordsPerRow_((static_cast<std::size_t>(image.Width()) + 63) / 64),
      words_(wordsPerRow_ * static_cast<std::size_t>(image.Height())) {
    const Argb threshold = static_cast<Argb>(level) << 24;
    const int width = image.Width();
    for (int row = 0; row < image.Height(); ++row) {
        const Argb* pixels = image.Row(row);
        std::uint64_t* words = words_.data() + static_cast<std::size_t>(row) * wordsPerRow_;
        for (int column = 0; column < width; column += 64) {
            std::uint64_t word = 0;
            const int count = std::min(64, width - column);
            for (int i = 0; i < count; ++i)
                word |= std::uint64_t{pixels[column + i] >= threshold} << i;
            words[column / 64] = word;
            if (word == 0)
                continue;
            const int first = std::countr_zero(word), end = 64 - std::countl_zero(word);
            bounds_ = Unite(bounds_, {x + column + first, y + row, end - first, 1});
        }
    }
}

bool PixelMask::Contains(std::int64_t x, std::int64_t y) const {
    const std::int64_t column = x - box_.X, row = y - box_.Y;
    return column >= 0 && column < box_.Width && row >= 0 && row < box_.Height &&
           Has(static_cast<int>(column), static_cast<int>(row));
}

std::vector<RectI> PixelMask::Rects() const {
    std::vector<RectI> rects;
    for (int row = 0; row < box_.Height; ++row) {
        for (int column = 0; column < box_.Width; ++column) {
            if (!Has(column, row))
                continue;
            const int start = column;
            while (column < box_.Width && Has(column, row))
                ++column;
            rects.push_back({box_.X + start, box_.Y + row, column - start, 1});
        }
    }
    return rects;
}

}  // namespace orbelle::graphics
