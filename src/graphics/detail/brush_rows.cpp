#include "graphics/detail/brush_rows.h"

#include "graphics/detail/blend.h"

namespace orbelle::graphics {
namespace {

Argb WithCoverage(Argb color, unsigned coverage) {
    return SetAlphaByte(color, (2 * AlphaOf(color) * coverage + 255) / 510);
}

}  // namespace

BrushRows::BrushRows(const Brush& brush, double offset, const RectI& area) : area_(area) {
    if (const auto* solid = std::get_if<SolidBrush>(&brush)) {
        solid_ = solid->Color;
    } else if (const auto* around = std::get_if<PathGradientBrush>(&brush)) {
        pixels_ = around->ColorsOf(area, offset);
    } else if (const auto& gradient = std::get<LinearGradientBrush>(brush);
               gradient.Mode == LinearGradientMode::Horizontal) {
        for (int i = 0; i < area.Width; ++i)
            columns_.push_back(gradient.ColorAt(area.X + i + offset, 0));
    } else {
        for (int i = 0; i < area.Height; ++i)
            rows_.push_back(gradient.ColorAt(0, area.Y + i + offset));
    }
}

const Argb* BrushRows::Row(int x, int y) const {
    if (!columns_.empty())
        return &columns_[x - area_.X];
    if (!pixels_.empty())
        return &pixels_[static_cast<std::size_t>(y - area_.Y) * area_.Width + (x - area_.X)];
    return nullptr;
}

Argb BrushRows::RowColor(int y) const {
    return rows_.empty() ? solid_ : rows_[y - area_.Y];
}

void BrushRows::Blend(Argb* pixels, int x, int y, int count, unsigned coverage) const {
    const Argb* colors = Row(x, y);
    if (!colors) {
        BlendColor(pixels, WithCoverage(RowColor(y), coverage), count);
    } else if (coverage == 255) {
        BlendRow(pixels, colors, count);
    } else {
        for (int i = 0; i < count; ++i)
            pixels[i] = BlendPixel(pixels[i], WithCoverage(colors[i], coverage));
    }
}

void BrushRows::Blend(Argb* pixels, int x, int y, int count, const std::uint8_t* coverage) const {
    const Argb* colors = Row(x, y);
    for (int i = 0; i < count; ++i) {
        const Argb color = colors ? colors[i] : RowColor(y);
        pixels[i] = BlendPixel(pixels[i], WithCoverage(color, coverage[i]));
    }
}

void BlendRects(Bitmap& target, std::span<const RectI> rects, const Brush& brush, double offset) {
    if (rects.empty())
        return;
    const BrushRows colors(brush, offset, BoxAround(rects));
    Argb* pixels = target.MutablePixels();
    for (const RectI& rect : rects) {
        Argb* row = pixels + static_cast<std::size_t>(rect.Y) * target.Width() + rect.X;
        for (int y = rect.Y; y < rect.Y + rect.Height; ++y, row += target.Width())
            colors.Blend(row, rect.X, y, rect.Width);
    }
}

}  // namespace orbelle::graphics
