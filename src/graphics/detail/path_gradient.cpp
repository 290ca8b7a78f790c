#include "graphics/detail/path_gradient.h"

#include <algorithm>

#include "graphics/detail/gradient_mix.h"
#include "graphics/detail/scan_conversion.h"

namespace orbelle::graphics {
namespace {

// Colours are looked up: mixing one for each pixel takes ten times as long. At this many steps a
// channel's error is a thirtieth of a unit before it is rounded.
constexpr int kSteps = 4096;

std::vector<Argb> ColorTable(Argb centerColor, Argb surroundColor) {
    std::vector<Argb> table(kSteps + 1);
    for (int i = 0; i <= kSteps; ++i)
        table[i] = MixPremultiplied(centerColor, surroundColor, static_cast<double>(i) / kSteps);
    return table;
}

// The distance from the centre in the triangle between the centre and one edge of the outline: 0 at
// the centre, kSteps on the edge.
class EdgeDistance {
public:
    EdgeDistance(PointF center, PointF start, PointF end) : centerX_(center.X), centerY_(center.Y) {
        const double dx = double{end.X} - start.X, dy = double{end.Y} - start.Y;
        const double area = (start.X - centerX_) * dy - (start.Y - centerY_) * dx;
        isFlat_ = area == 0;
        perColumn_ = kSteps * dy / area;
        perRow_ = kSteps * -dx / area;
    }

    bool IsFlat() const { return isFlat_; }

    // Sets the colours of a run of one row, `colors` pointing at the first.
    void Paint(Argb* colors, const RectI& run, double offset,
               const std::vector<Argb>& table) const {
        // From column 0 on and not from the run's start: a pixel's colour must not depend on where
        // the painted area begins.
        const double atColumn0 =
            (offset - centerX_) * perColumn_ + (run.Y + offset - centerY_) * perRow_ + 0.5;
        for (int i = 0; i < run.Width; ++i) {
            const double step = atColumn0 + (run.X + i) * perColumn_;
            colors[i] = table[static_cast<int>(std::clamp(step, 0.0, double{kSteps}))];
        }
    }

private:
    double centerX_, centerY_;
    double perColumn_, perRow_;
    bool isFlat_;
};

// Sets the pixels of `area` that no run covers to `color`; the runs come by y and then x.
void FillOutside(std::vector<Argb>& colors, Argb color, const RectI& area,
                 const std::vector<RectI>& runs) {
    auto filled = colors.begin();
    for (const RectI& run : runs) {
        const auto first = colors.begin() +
                           static_cast<std::ptrdiff_t>(run.Y - area.Y) * area.Width +
                           (run.X - area.X);
        std::fill(filled, first, color);
        filled = first + run.Width;
    }
    std::fill(filled, colors.end(), color);
}

}  // namespace

std::vector<Argb> PathGradientBrush::ColorsOf(const RectI& area, double offset) const {
    const std::vector<Argb> table = ColorTable(CenterColor, SurroundColor);
    const Argb surround = table.back();
    std::vector<Argb> colors(static_cast<std::size_t>(area.Width) * area.Height, surround);
    const std::vector<FlatFigure> figures = Outline.Flatten();
    std::vector<RectI> runs;
    for (const FlatFigure& figure : figures) {
        if (!IsFinite(figure) || !IsFinite({{CenterPoint}, false}))
            continue;
        for (std::size_t i = 0; i < figure.Points.size(); ++i) {
            const PointF start = figure.Points[i];
            const PointF end = figure.Points[i + 1 < figure.Points.size() ? i + 1 : 0];
            const EdgeDistance distance(CenterPoint, start, end);
            if (distance.IsFlat())
                continue;
            // Neighbouring triangles share a side and so its exact crossings: no pixel of the
            // inside is left out.
            PixelsInsideTriangle({CenterPoint, start, end}, offset, area, runs);
            for (const RectI& run : runs) {
                Argb* first = &colors[static_cast<std::size_t>(run.Y - area.Y) * area.Width +
                                      (run.X - area.X)];
                distance.Paint(first, run, offset, table);
            }
        }
    }
    // Triangles to a centre outside the outline reach beyond it.
    FillOutside(colors, surround, area, PixelsInside(figures, Outline.Fill(), offset, area));
    return colors;
}

}  // namespace orbelle::graphics
