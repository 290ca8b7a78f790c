#include "filters/light_and_shadow.h"

#include <algorithm>
#include <vector>

#include "filters/create_region.h"
#include "graphics/drawing_context.h"

namespace orbelle::filters {

using namespace graphics;

namespace {

unsigned Faded(Argb color, int y, int height) {
    return AlphaOf(color) * static_cast<unsigned>(y) / static_cast<unsigned>(height);
}

// The lowest row with a solid pixel; 0 when there is none.
int LowestSolidRow(const Bitmap& image) {
    for (int y = image.Height() - 1; y > 0; --y) {
        const Argb* row = image.Row(y);
        if (std::any_of(row, row + image.Width(),
                        [](Argb color) { return AlphaOf(color) >= kSolidAlpha; }))
            return y;
    }
    return 0;
}

}  // namespace

ReflectionPicture Reflection(const Bitmap& image) {
    ReflectionPicture result{image, image.Height() - LowestSolidRow(image) - 1};
    for (int y = 0; y < image.Height(); ++y) {
        Argb* row = result.Image.MutableRow(y);
        for (int x = 0; x < image.Width(); ++x)
            row[x] = SetAlphaByte(row[x], Faded(row[x], y, image.Height()));
    }
    return result;
}

Bitmap GradientBlack(const Bitmap& image) {
    Bitmap result = image;
    for (int y = 0; y < image.Height(); ++y) {
        Argb* row = result.MutableRow(y);
        for (int x = 0; x < image.Width(); ++x)
            row[x] = MakeArgb(Faded(row[x], y, image.Height()), 0, 0, 0);
    }
    return result;
}

Bitmap Shadow(const Bitmap& image, int radius) {
    Bitmap shape(image.Width() + 2 * radius, image.Height() + 2 * radius);
    Bitmap result(shape.Width(), shape.Height());
    DrawingContext(shape).DrawImage(image, 0, 0);
    const int width = shape.Width();
    const int height = shape.Height();
    // Sums of each column over the rows of the square; those of the squares come from them.
    std::vector<unsigned> columns(static_cast<std::size_t>(width));
    const auto addRow = [&](int y, unsigned sign) {
        if (y < 0 || y >= height)
            return;
        const Argb* row = shape.Row(y);
        for (int x = 0; x < width; ++x)
            columns[static_cast<std::size_t>(x)] += sign * AlphaOf(row[x]);
    };
    for (int y = 0; y < radius; ++y)
        addRow(y, 1);
    for (int y = 0; y < height; ++y) {
        addRow(y + radius, 1);
        const int rows = std::min(y + radius, height - 1) - std::max(y - radius, 0) + 1;
        const Argb* centre = shape.Row(y);
        Argb* out = result.MutableRow(y);
        unsigned sum = 0;
        for (int x = 0; x < std::min(radius, width); ++x)
            sum += columns[static_cast<std::size_t>(x)];
        for (int x = 0; x < width; ++x) {
            if (x + radius < width)
                sum += columns[static_cast<std::size_t>(x + radius)];
            const int across = std::min(x + radius, width - 1) - std::max(x - radius, 0) + 1;
            const auto count = static_cast<unsigned>(rows * across + 1);
            out[x] = MakeArgb((sum + AlphaOf(centre[x])) / count, 0, 0, 0);
            if (x - radius >= 0)
                sum -= columns[static_cast<std::size_t>(x - radius)];
        }
        addRow(y - radius, 0U - 1U);
    }
    return result;
}

}  // namespace orbelle::filters
