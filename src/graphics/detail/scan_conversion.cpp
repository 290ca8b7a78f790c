#include "graphics/detail/scan_conversion.h"

#include <algorithm>
#include <cmath>

namespace orbelle::graphics {
namespace {

// A polygon's edge, downwards, with the rows whose centres it spans.
struct Edge {
    double X;  // the upper end
    double Y;
    double Dx;  // from there to the lower end
    double Dy;
    int Winding;  // 1 when the polygon runs down here, -1 when up
    int FirstRow;
    int EndRow;

    // Multiplies before it divides, which leaves crossings at whole numbers exact.
    double CrossingAt(double y) const { return X + (y - Y) * Dx / Dy; }
};

struct Crossing {
    double X;
    int Winding;
};

// The first pixel whose centre is not before the coordinate, held between `low` and `high`.
int FirstCentre(double coordinate, double offset, int low, int high) {
    const double first = coordinate - offset;
    const double raised = first < low ? low : first;
    const double limited = raised > high ? high : raised;
    // A call of ceil takes longer than the rest of what is done for a row of a triangle.
    const int whole = static_cast<int>(limited);
    return whole < limited ? whole + 1 : whole;
}

// The rows lie between top and bottom; there are none when the edge passes no row's centre there.
Edge EdgeBetween(PointF a, PointF b, double offset, int top, int bottom) {
    const int winding = a.Y < b.Y ? 1 : -1;
    if (winding < 0)
        std::swap(a, b);
    return {a.X,
            a.Y,
            double{b.X} - a.X,
            double{b.Y} - a.Y,
            winding,
            FirstCentre(a.Y, offset, top, bottom),
            FirstCentre(b.Y, offset, top, bottom)};
}

std::vector<Edge> EdgesOf(std::span<const FlatFigure> figures, double offset, int top, int bottom) {
    std::vector<Edge> edges;
    for (const FlatFigure& figure : figures) {
        if (!IsFinite(figure))
            continue;
        for (std::size_t i = 0; i < figure.Points.size(); ++i) {
            const PointF next = figure.Points[i + 1 < figure.Points.size() ? i + 1 : 0];
            const Edge edge = EdgeBetween(figure.Points[i], next, offset, top, bottom);
            if (edge.FirstRow < edge.EndRow)
                edges.push_back(edge);
        }
    }
    std::sort(edges.begin(), edges.end(),
              [](const Edge& a, const Edge& b) { return a.FirstRow < b.FirstRow; });
    return edges;
}

void SortByX(std::vector<Crossing>& crossings) {
    // Rows of convex shapes have two crossings; a general sort would take most of their time.
    if (crossings.size() == 2) {
        if (crossings[1].X < crossings[0].X)
            std::swap(crossings[0], crossings[1]);
        return;
    }
    std::sort(crossings.begin(), crossings.end(),
              [](const Crossing& a, const Crossing& b) { return a.X < b.X; });
}

// Turns the sorted crossings of one row into runs.
void AppendRuns(std::vector<RectI>& runs, std::span<const Crossing> crossings, FillMode fillMode,
                double offset, int row, const RectI& within) {
    const int right = within.X + within.Width;
    int winding = 0;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].Winding;
        const bool inside = fillMode == FillMode::Winding ? winding != 0 : i % 2 == 0;
        if (!inside)
            continue;
        const int from = FirstCentre(crossings[i].X, offset, within.X, right);
        const int end = FirstCentre(crossings[i + 1].X, offset, within.X, right);
        if (from >= end)
            continue;
        if (!runs.empty() && runs.back().Y == row && runs.back().X + runs.back().Width == from)
            runs.back().Width += end - from;
        else
            runs.push_back({from, row, end - from, 1});
    }
}

}  // namespace

Edges EdgesOf(const RectF& rect) {
    const float right = rect.X + rect.Width;
    const float bottom = rect.Y + rect.Height;
    return {rect.X, rect.Y, right, bottom};
}

RectI PixelsInside(const Edges& edges, double offset, const RectI& within) {
    // Written so that not-a-number fails.
    if (!(edges.Left < edges.Right && edges.Top < edges.Bottom) || within.IsEmpty())
        return {};
    const int right = within.X + within.Width, bottom = within.Y + within.Height;
    const int x = FirstCentre(edges.Left, offset, within.X, right);
    const int y = FirstCentre(edges.Top, offset, within.Y, bottom);
    const RectI pixels{x, y, FirstCentre(edges.Right, offset, within.X, right) - x,
                       FirstCentre(edges.Bottom, offset, within.Y, bottom) - y};
    return pixels.IsEmpty() ? RectI{} : pixels;
}

std::vector<RectI> PixelsInside(std::span<const FlatFigure> figures, FillMode fillMode,
                                double offset, const RectI& within) {
    std::vector<RectI> runs;
    if (within.IsEmpty())
        return runs;
    const std::vector<Edge> edges = EdgesOf(figures, offset, within.Y, within.Y + within.Height);
    std::vector<const Edge*> active;
    std::vector<Crossing> crossings;
    auto next = edges.begin();
    for (int row = 0; next != edges.end() || !active.empty(); ++row) {
        if (active.empty())
            row = next->FirstRow;
        for (; next != edges.end() && next->FirstRow == row; ++next)
            active.push_back(&*next);
        crossings.clear();
        for (const Edge* edge : active)
            crossings.push_back({edge->CrossingAt(row + offset), edge->Winding});
        SortByX(crossings);
        AppendRuns(runs, crossings, fillMode, offset, row, within);
        std::erase_if(active, [&](const Edge* edge) { return edge->EndRow == row + 1; });
    }
    return runs;
}

void PixelsInsideTriangle(const std::array<PointF, 3>& corners, double offset, const RectI& within,
                          std::vector<RectI>& runs) {
    runs.clear();
    if (within.IsEmpty())
        return;
    const int bottom = within.Y + within.Height, right = within.X + within.Width;
    std::array<Edge, 3> edges;
    for (std::size_t i = 0; i < 3; ++i)
        edges[i] = EdgeBetween(corners[i], corners[(i + 1) % 3], offset, within.Y, bottom);
    // One edge passes all rows, the other two share them.
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) {
        return a.EndRow - a.FirstRow > b.EndRow - b.FirstRow;
    });
    if (edges[2].FirstRow < edges[1].FirstRow)
        std::swap(edges[1], edges[2]);
    const Edge& across = edges[0];
    for (const Edge& beside : {edges[1], edges[2]}) {
        for (int row = beside.FirstRow; row < beside.EndRow; ++row) {
            const double one = across.CrossingAt(row + offset);
            const double other = beside.CrossingAt(row + offset);
            const int from = FirstCentre(one < other ? one : other, offset, within.X, right);
            const int to = FirstCentre(one < other ? other : one, offset, within.X, right);
            if (from < to)
                runs.push_back({from, row, to - from, 1});
        }
    }
}

bool IsFinite(const FlatFigure& figure) {
    return std::all_of(figure.Points.begin(), figure.Points.end(), [](PointF point) {
        return std::isfinite(point.X) && std::isfinite(point.Y);
    });
}

}  // namespace orbelle::graphics
