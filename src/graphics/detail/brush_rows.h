// Painting runs of pixels with a brush.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/brush.h"
#include "graphics/geometry.h"

namespace orbelle::graphics {

// The colours of a brush for the pixels of `area`, worked out once: for each column or row of a
// linear gradient, for each pixel of a path gradient. Gradients are evaluated at (x + offset,
// y + offset).
class BrushRows {
public:
    BrushRows(const Brush& brush, double offset, const RectI& area);

    // Blends the brush over `count` pixels of row y from column x on, its alpha times coverage /
    // 255, rounded. `pixels` points at the first; the run has to lie in the area.
    void Blend(Argb* pixels, int x, int y, int count, unsigned coverage = 255) const;
    // The same with a coverage for each pixel.
    void Blend(Argb* pixels, int x, int y, int count, const std::uint8_t* coverage) const;

private:
    // The colours of row y from column x on; null when they are all RowColor.
    const Argb* Row(int x, int y) const;
    Argb RowColor(int y) const;

    RectI area_;
    Argb solid_ = 0;
    std::vector<Argb> columns_;  // only for a horizontal gradient
    std::vector<Argb> rows_;     // only for a vertical gradient
    std::vector<Argb> pixels_;   // only for a path gradient
};

// Blends the brush over rectangles that lie in the target and do not overlap.
void BlendRects(Bitmap& target, std::span<const RectI> rects, const Brush& brush, double offset);

}  // namespace orbelle::graphics
