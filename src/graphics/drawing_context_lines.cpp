#include <algorithm>

#include "graphics/detail/brush_rows.h"
#include "graphics/detail/pixel_lines.h"
#include "graphics/detail/stroke.h"
#include "graphics/drawing_context.h"

namespace orbelle::graphics {
namespace {

// Null for a negative or not-a-number width or height.
Path EllipseIn(const RectF& box) {
    if (!(box.Width >= 0 && box.Height >= 0))
        return {};
    Path path(FillMode::Winding);
    path.AddEllipse(box);
    return path;
}

}  // namespace

void DrawingContext::DrawLine(const Pen& pen, PointF start, PointF end) {
    DrawFigure(pen, {{start, end}, false}, LineJoin::Miter);
}

void DrawingContext::DrawLines(const Pen& pen, std::span<const PointF> points) {
    DrawFigure(pen, {{points.begin(), points.end()}, false}, LineJoin::Miter);
}

void DrawingContext::DrawPolygon(const Pen& pen, std::span<const PointF> points) {
    DrawFigure(pen, {{points.begin(), points.end()}, true}, LineJoin::Miter);
}

void DrawingContext::DrawEllipse(const Pen& pen, const RectF& box) {
    for (const FlatFigure& figure : EllipseIn(box).Flatten())
        DrawFigure(pen, figure, LineJoin::Round);
}

void DrawingContext::FillEllipse(const Brush& brush, const RectF& box) {
    FillPath(brush, EllipseIn(box));
}

void DrawingContext::DrawFigure(const Pen& pen, const FlatFigure& figure, LineJoin join) {
    const RectI canvas{0, 0, target_.Width(), target_.Height()};
    if (pen.Width > 1 || smoothing_ == SmoothingMode::AntiAlias) {
        const double width = std::max(pen.Width, 1.0F);
        FillFigures(pen.Fill, OutlineOfStroke(figure, width, join, canvas), FillMode::Winding);
        return;
    }
    std::vector<PointF> points = figure.Points;
    if (figure.Closed && !points.empty())
        points.push_back(points.front());
    BlendRects(target_, PixelsOfLines(points, Offset(), clip_.Rects(canvas)), pen.Fill, Offset());
}

}  // namespace orbelle::graphics
