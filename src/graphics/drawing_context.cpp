#include "graphics/drawing_context.h"

#include <agg_rasterizer_scanline_aa.h>
#include <agg_scanline_p.h>

#include <algorithm>
#include <cmath>

#include "graphics/detail/brush_rows.h"
#include "graphics/detail/scan_conversion.h"

namespace orbelle::graphics {
namespace {

RectI WholeOf(const Bitmap& bitmap) {
    return {0, 0, bitmap.Width(), bitmap.Height()};
}

// Walks down a clip's rectangles, which come in bands, row by row.
class ClipRows {
public:
    explicit ClipRows(const std::vector<RectI>& rects) : rects_(rects) {}

    // The rectangles that cross row y; y never less than the time before.
    std::span<const RectI> At(int y) {
        while (first_ < rects_.size() && rects_[first_].Y + rects_[first_].Height <= y)
            ++first_;
        std::size_t end = first_;
        while (end < rects_.size() && rects_[end].Y <= y)
            ++end;
        return {rects_.data() + first_, end - first_};
    }

private:
    const std::vector<RectI>& rects_;
    std::size_t first_ = 0;
};

// Clips in real numbers: with whole ones a far-away point would overflow.
using SmoothRasterizer = agg::rasterizer_scanline_aa<agg::rasterizer_sl_clip_dbl>;
using SmoothSpan = agg::scanline_p8::span;

void AddFigures(SmoothRasterizer& rasterizer, std::span<const FlatFigure> figures, double shift) {
    for (const FlatFigure& figure : figures) {
        if (!IsFinite(figure))
            continue;
        rasterizer.move_to_d(figure.Points[0].X + shift, figure.Points[0].Y + shift);
        for (std::size_t i = 1; i < figure.Points.size(); ++i)
            rasterizer.line_to_d(figure.Points[i].X + shift, figure.Points[i].Y + shift);
    }
}

// The part of one span of a row that lies in one rectangle of the clip.
void BlendSpan(Argb* row, int y, const SmoothSpan& span, const RectI& clip,
               const BrushRows& colors) {
    const bool uniform = span.len < 0;
    const int from = std::max<int>(span.x, clip.X);
    const int end = std::min<int>(span.x + std::abs(span.len), clip.X + clip.Width);
    if (from >= end)
        return;
    if (uniform)
        colors.Blend(row + from, from, y, end - from, *span.covers);
    else
        colors.Blend(row + from, from, y, end - from, span.covers + (from - span.x));
}

}  // namespace

DrawingContext::DrawingContext(Bitmap& target) : target_(target) {}

double DrawingContext::Offset() const {
    return pixelOffset_ == PixelOffsetMode::HighQuality ? 0.5 : 0;
}

void DrawingContext::SetClipPath(const Path& path, CombineMode mode) {
    if (path.IsNull())
        return;
    SetClipRegion(Region::FromPixelRects(
                      PixelsInside(path.Flatten(), path.Fill(), Offset(), WholeOf(target_))),
                  mode);
}

void DrawingContext::SetClipRegion(const Region& region, CombineMode mode) {
    clip_.Combine(region, mode);
}

void DrawingContext::Clear(Argb color) {
    if (target_.Format() == PixelFormat::Rgb24)
        color = SetAlphaByte(color, 255);
    for (const RectI& rect : clip_.Rects(WholeOf(target_))) {
        for (int y = rect.Y; y < rect.Y + rect.Height; ++y)
            std::fill_n(target_.MutableRow(y) + rect.X, rect.Width, color);
    }
}

void DrawingContext::FillRectangle(const Brush& brush, const RectF& rect) {
    const RectI pixels = PixelsInside(EdgesOf(rect), Offset(), WholeOf(target_));
    BlendRects(target_, clip_.Rects(pixels), brush, Offset());
}

void DrawingContext::FillRegion(const Brush& brush, const Region& region) {
    if (region.IsNull())
        return;
    Region painted = region;
    painted.Combine(clip_, CombineMode::Intersect);
    BlendRects(target_, painted.Rects(WholeOf(target_)), brush, Offset());
}

void DrawingContext::FillPath(const Brush& brush, const Path& path) {
    FillFigures(brush, path.Flatten(), path.Fill());
}

void DrawingContext::FillFigures(const Brush& brush, std::span<const FlatFigure> figures,
                                 FillMode fillMode) {
    if (smoothing_ != SmoothingMode::AntiAlias) {
        FillRegion(brush, Region::FromPixelRects(
                              PixelsInside(figures, fillMode, Offset(), WholeOf(target_))));
        return;
    }
    const std::vector<RectI> clip = clip_.Rects(WholeOf(target_));
    if (clip.empty())
        return;
    const RectI area = BoxAround(clip);
    SmoothRasterizer rasterizer;
    rasterizer.clip_box(area.X, area.Y, area.X + area.Width, area.Y + area.Height);
    rasterizer.filling_rule(fillMode == FillMode::Winding ? agg::fill_non_zero
                                                          : agg::fill_even_odd);
    AddFigures(rasterizer, figures, 0.5 - Offset());
    if (!rasterizer.rewind_scanlines())
        return;
    const RectI painted{rasterizer.min_x(), rasterizer.min_y(),
                        rasterizer.max_x() - rasterizer.min_x() + 1,
                        rasterizer.max_y() - rasterizer.min_y() + 1};
    const BrushRows colors(brush, Offset(), Intersect(painted, area));
    Argb* pixels = target_.MutablePixels();
    ClipRows clipRows(clip);
    agg::scanline_p8 scanline;
    scanline.reset(rasterizer.min_x(), rasterizer.max_x());
    while (rasterizer.sweep_scanline(scanline)) {
        const int y = scanline.y();
        Argb* row = pixels + static_cast<std::size_t>(y) * target_.Width();
        const std::span<const RectI> allowed = clipRows.At(y);
        auto span = scanline.begin();
        for (unsigned i = 0; i < scanline.num_spans(); ++i, ++span) {
            for (const RectI& clipRect : allowed)
                BlendSpan(row, y, *span, clipRect, colors);
        }
    }
}

void DrawingContext::DrawRectangle(const Pen& pen, const RectF& rect) {
    if (rect.Width < 0 || rect.Height < 0 || (rect.Width == 0 && rect.Height == 0))
        return;
    const Edges line = EdgesOf(rect);
    Edges outer, hole;
    double offset = Offset();
    if (pen.Width > 1) {
        const double reach = pen.Width / 2.0;
        outer = {line.Left - reach, line.Top - reach, line.Right + reach, line.Bottom + reach};
        hole = {line.Left + reach, line.Top + reach, line.Right - reach, line.Bottom - reach};
    } else {
        // The pixels that hold the corners, both ends of each side included.
        const auto pixel = [offset](double v) { return std::floor(v - offset + 0.5); };
        const double left = pixel(line.Left), right = pixel(line.Right);
        const double top = pixel(line.Top), bottom = pixel(line.Bottom);
        outer = {left, top, right + 1, bottom + 1};
        hole = {left + 1, top + 1, right, bottom};
        offset = 0;
    }
    Region ring = Region::FromPixelRects({PixelsInside(outer, offset, WholeOf(target_))});
    ring.Combine(Region::FromPixelRects({PixelsInside(hole, offset, WholeOf(target_))}),
                 CombineMode::Exclude);
    FillRegion(pen.Fill, ring);
}

}  // namespace orbelle::graphics
