#include "filters/edge_relief.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "graphics/drawing_context.h"

namespace orbelle::filters {
namespace {

using namespace graphics;

constexpr unsigned kDarkenBelow = 100;
constexpr unsigned kEmphasizeBelow = 150;
constexpr int kEmphasisOffset = 5;

// The largest blue, green and red of a block of pixels whose rows are `stride` pixels apart, as a
// colour of alpha 0.
Argb LargestChannels(const Argb* topLeft, std::ptrdiff_t stride, int columns, int rows) {
    Argb red = 0, green = 0, blue = 0;
    for (int y = 0; y < rows; ++y, topLeft += stride) {
        for (int x = 0; x < columns; ++x) {
            red = std::max(red, topLeft[x] & 0x00FF0000);
            green = std::max(green, topLeft[x] & 0x0000FF00);
            blue = std::max(blue, topLeft[x] & 0x000000FF);
        }
    }
    return red | green | blue;
}

// The top left pixels of a bitmap, as far as it reaches.
class ReliefArea {
public:
    ReliefArea(Bitmap& bitmap, int width, int height)
        : pixels_(bitmap.MutablePixels()),
          stride_(bitmap.Width()),
          width_(std::min(width, bitmap.Width())),
          height_(std::min(height, bitmap.Height())) {}

    // Averages pixels with an alpha below kDarkenBelow around them. The outermost ones stay.
    void DarkenEdge() {
        ForEachEdgePixel(kDarkenBelow, [this](Argb& pixel, int x, int y) {
            if (x > 0 && y > 0 && x + 1 < width_ && y + 1 < height_)
                pixel = Darkened(&pixel);
        });
    }

    void EmphasizeEdge() {
        ForEachEdgePixel(kEmphasizeBelow, [this](Argb& pixel, int x, int y) {
            const int left = std::max(x - 1, 0);
            const int top = std::max(y - 1, 0);
            const Argb largest =
                LargestChannels(pixels_ + top * stride_ + left, stride_,
                                std::min(x + 2, width_) - left, std::min(y + 2, height_) - top);
            const auto channel = [](unsigned value, unsigned most) {
                const int moved = static_cast<int>(2 * value - most) + kEmphasisOffset;
                return static_cast<unsigned>(std::clamp(moved, 0, 255));
            };
            pixel = MakeArgb(AlphaOf(pixel), channel(RedOf(pixel), RedOf(largest)),
                             channel(GreenOf(pixel), GreenOf(largest)),
                             channel(BlueOf(pixel), BlueOf(largest)));
        });
    }

private:
    // Calls change(pixel, x, y) for the pixels with an alpha below `threshold` in their 3 x 3
    // neighbourhood. No change touches alpha.
    template <class Change>
    void ForEachEdgePixel(unsigned threshold, Change change) {
        const Argb limit = threshold << 24;
        // The lowest alpha of each column of three rows, with the colour bits under it, between
        // two columns outside. Positions outside count for nothing: the rule is that the alpha
        // read last counts again there, but that could only matter in the top row and the left
        // column, which are transparent themselves.
        std::vector<Argb> columns(static_cast<std::size_t>(width_) + 2, MakeArgb(255, 0, 0, 0));
        for (int y = 0; y < height_; ++y) {
            Argb* row = pixels_ + y * stride_;
            const Argb* above = y > 0 ? row - stride_ : row;
            const Argb* below = y + 1 < height_ ? row + stride_ : row;
            for (int x = 0; x < width_; ++x)
                columns[x + 1] = std::min({above[x], row[x], below[x]});
            for (int x = 0; x < width_; ++x) {
                if (std::min({columns[x], columns[x + 1], columns[x + 2]}) < limit)
                    change(row[x], x, y);
            }
        }
    }

    // Five terms by six: darker than their mean (docs/oddities.md, "Five sixths").
    Argb Darkened(const Argb* pixel) const {
        unsigned red = 0, green = 0, blue = 0;
        for (const Argb color : {pixel[0], pixel[1], pixel[-1], pixel[stride_], pixel[-stride_]}) {
            red += RedOf(color);
            green += GreenOf(color);
            blue += BlueOf(color);
        }
        return MakeArgb(AlphaOf(*pixel), red / 6, green / 6, blue / 6);
    }

    Argb* pixels_;
    std::ptrdiff_t stride_;
    int width_;
    int height_;
};

}  // namespace

StylePicture FreshStyle(const Bitmap& image, int pageWidth, int pageHeight) {
    StylePicture relief{Bitmap(pageWidth, pageHeight), 0, 0, image.Width(), image.Height()};
    DrawingContext(relief.Image)
        .DrawImageRect(image, {1, 1, static_cast<float>(image.Width() - 2),
                               static_cast<float>(image.Height() - 2)});
    ReliefArea area(relief.Image, image.Width(), image.Height());
    area.DarkenEdge();
    area.EmphasizeEdge();
    return relief;
}

}  // namespace orbelle::filters
