#include "graphics/detail/stroke.h"

#include <agg_conv_clip_polygon.h>
#include <agg_conv_stroke.h>
#include <agg_path_storage.h>

#include <algorithm>

#include "graphics/detail/scan_conversion.h"

namespace orbelle::graphics {
namespace {

constexpr double kMiterLimit = 10;
// Arcs stray by an eighth of a pixel divided by this. Fine enough that the flat joints of a curve
// are not mitred either: the four tips of a circle would get a pixel too much.
constexpr double kArcFineness = 64;

// Collects the figures of an AGG vertex source.
template <typename Source>
std::vector<FlatFigure> FiguresOf(Source& source) {
    std::vector<FlatFigure> figures;
    source.rewind(0);
    double x = 0, y = 0;
    for (unsigned command = source.vertex(&x, &y); !agg::is_stop(command);
         command = source.vertex(&x, &y)) {
        if (!agg::is_vertex(command))
            continue;
        if (agg::is_move_to(command) || figures.empty())
            figures.push_back({.Points = {}, .Closed = true});
        figures.back().Points.push_back({static_cast<float>(x), static_cast<float>(y)});
    }
    return figures;
}

}  // namespace

std::vector<FlatFigure> OutlineOfStroke(const FlatFigure& figure, double width, LineJoin join,
                                        const RectI& area) {
    if (!IsFinite(figure))
        return {};
    std::vector<PointF> points;
    std::unique_copy(figure.Points.begin(), figure.Points.end(), std::back_inserter(points));
    if (figure.Closed) {
        while (points.size() > 1 && points.back() == points.front())
            points.pop_back();
    }
    if (points.size() < 2)
        return {};

    agg::path_storage line;
    line.move_to(points[0].X, points[0].Y);
    for (std::size_t i = 1; i < points.size(); ++i)
        line.line_to(points[i].X, points[i].Y);
    if (figure.Closed && points.size() > 2)
        line.close_polygon();

    agg::conv_stroke<agg::path_storage> stroke(line);
    stroke.width(width);
    stroke.line_cap(agg::butt_cap);
    stroke.line_join(join == LineJoin::Round ? agg::round_join : agg::miter_join_revert);
    stroke.approximation_scale(kArcFineness);
    stroke.miter_limit(kMiterLimit);
    // Tight inner corners go by the corner itself. Offset lines alone turn inside out there and
    // would wind backwards: holes in small ellipses and in hairpin bends.
    stroke.inner_join(agg::inner_jag);

    // Far away the points of figures are too coarse for a line's width.
    constexpr int kMargin = 2;
    agg::conv_clip_polygon<agg::conv_stroke<agg::path_storage>> nearby(stroke);
    nearby.clip_box(area.X - kMargin, area.Y - kMargin, area.X + area.Width + kMargin,
                    area.Y + area.Height + kMargin);
    return FiguresOf(nearby);
}

}  // namespace orbelle::graphics
