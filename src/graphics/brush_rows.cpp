#include "graphics/brush_rows.h"

#include "graphics/blend.h"

namespace orbelle::graphics {
namespace {

Argb WithCoverage(Argb color, unsigned coverage) {
    return SetAlphaByte(color, (2 * AlphaOf(color) * coverage + 255) / 510);
}

}  // namespace

BrushRows::BrushRows(const Brush& brush, double offset, const RectI& area) : area_(area) {
    if (const auto* solid = std::get_if<SolidBrush>(&brush)) {
        solid_ = solid->Color;
        return;
    }
    const auto& gradient = std::get<LinearGradientBrush>(brush);
    if (gradient.Mode == LinearGradientMode::Horizontal) {
        for (int i = 0; i < area.Width; ++i)
            columns_.push_back(gradient.ColorAt(area.X + i + offset, 0));
    } else {
        for (int i = 0; i < area.Height; ++i)
            rows_.push_back(gradient.ColorAt(0, area.Y + i + offset));
    }
}

Argb BrushRows::ColorAt(int x, int y) const {
    if (!columns_.empty())
        return columns_[x - area_.X];
    return rows_.empty() ? solid_ : rows_[y - area_.Y];
}

void BrushRows::Blend(Argb* pixels, int x, int y, int count, unsigned coverage) const {
    if (columns_.empty()) {
        BlendColor(pixels, WithCoverage(ColorAt(x, y), coverage), count);
    } else if (coverage == 255) {
        BlendRow(pixels, &columns_[x - area_.X], count);
    } else {
        for (int i = 0; i < count; ++i)
            pixels[i] = BlendPixel(pixels[i], WithCoverage(ColorAt(x + i, y), coverage));
    }
}

void BrushRows::Blend(Argb* pixels, int x, int y, int count, const std::uint8_t* coverage) const {
    for (int i = 0; i < count; ++i)
        pixels[i] = BlendPixel(pixels[i], WithCoverage(ColorAt(x + i, y), coverage[i]));
}

}  // namespace orbelle::graphics
