#include "graphics/path_gradient.h"

#include <algorithm>

#include "graphics/gradient_mix.h"
#include "graphics/scan_conversion.h"

namespace orbelle::graphics {
namespace {

// The distance from the centre in the triangle between the centre and one edge of the outline: 0 at
// the centre, 1 on the edge.
class EdgeDistance {
public:
    EdgeDistance(PointF center, PointF start, PointF end)
        : centerX_(center.X),
          centerY_(center.Y),
          dx_(double{end.X} - start.X),
          dy_(double{end.Y} - start.Y),
          area_((start.X - centerX_) * dy_ - (start.Y - centerY_) * dx_) {}

    bool IsFlat() const { return area_ == 0; }
    double At(double x, double y) const {
        return std::clamp(((x - centerX_) * dy_ - (y - centerY_) * dx_) / area_, 0.0, 1.0);
    }

private:
    double centerX_, centerY_;
    double dx_, dy_;
    double area_;  // twice the triangle's
};

// Sets the pixels of `area` that no run covers to 0; the runs come by y and then x.
void ClearOutside(std::vector<Argb>& colors, const RectI& area, const std::vector<RectI>& runs) {
    auto cleared = colors.begin();
    for (const RectI& run : runs) {
        const auto first = colors.begin() +
                           static_cast<std::ptrdiff_t>(run.Y - area.Y) * area.Width +
                           (run.X - area.X);
        std::fill(cleared, first, 0);
        cleared = first + run.Width;
    }
    std::fill(cleared, colors.end(), 0);
}

}  // namespace

std::vector<Argb> PathGradientBrush::ColorsOf(const RectI& area, double offset) const {
    std::vector<Argb> colors(static_cast<std::size_t>(area.Width) * area.Height);
    const std::vector<FlatFigure> figures = Outline.Flatten();
    for (const FlatFigure& figure : figures) {
        for (std::size_t i = 0; i < figure.Points.size(); ++i) {
            const PointF start = figure.Points[i];
            const PointF end = figure.Points[i + 1 < figure.Points.size() ? i + 1 : 0];
            const EdgeDistance distance(CenterPoint, start, end);
            if (distance.IsFlat())
                continue;
            // Neighbouring triangles share a side and so its exact crossings: no pixel of the
            // inside is left out.
            const FlatFigure triangle{{CenterPoint, start, end}, true};
            for (const RectI& run :
                 PixelsInside({&triangle, 1}, FillMode::Alternate, offset, area)) {
                Argb* row = &colors[static_cast<std::size_t>(run.Y - area.Y) * area.Width];
                for (int x = run.X; x < run.X + run.Width; ++x) {
                    row[x - area.X] = MixPremultiplied(CenterColor, SurroundColor,
                                                       distance.At(x + offset, run.Y + offset));
                }
            }
        }
    }
    // Triangles to a centre outside the outline reach beyond it.
    ClearOutside(colors, area, PixelsInside(figures, Outline.Fill(), offset, area));
    return colors;
}

std::optional<PathGradientBrush> CreatePathGradientFromPath(const Path& path, Argb centerColor,
                                                            PointF centerPoint,
                                                            Argb surroundColor) {
    if (path.IsEmpty())
        return std::nullopt;
    return PathGradientBrush{path, centerColor, centerPoint, surroundColor};
}

}  // namespace orbelle::graphics
