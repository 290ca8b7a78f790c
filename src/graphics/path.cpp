#include "graphics/path.h"

#include <algorithm>
#include <cmath>

namespace orbelle::graphics {
namespace {

// How far the lines of a flattened curve may run beside it, in pixels.
constexpr double kFlatness = 0.02;
// Enough for every curve of the largest bitmap; larger ones come out coarser, never slower.
constexpr double kMostLines = 1000;

// A line to End (the control points unused) or a Bézier curve.
struct Segment {
    bool IsCurve = false;
    PointF Control1{};
    PointF Control2{};
    PointF End{};
};

struct Figure {
    PointF Start;
    std::vector<Segment> Segments{};
    bool Closed = false;

    PointF End() const { return Segments.empty() ? Start : Segments.back().End; }
    void AddLine(PointF end) { Segments.push_back({.End = end}); }
    void AddCurve(PointF control1, PointF control2, PointF end) {
        Segments.push_back({true, control1, control2, end});
    }
};

template <typename Visit>
void ForEachPoint(std::vector<Figure>& figures, Visit visit) {
    for (Figure& figure : figures) {
        visit(figure.Start);
        for (Segment& segment : figure.Segments) {
            if (segment.IsCurve) {
                visit(segment.Control1);
                visit(segment.Control2);
            }
            visit(segment.End);
        }
    }
}

// The curve strays from lines over n equal steps of its parameter by at most
// max|second derivative| / (8 n^2), and the second derivative is at most six times the larger
// second difference of the control points.
int LineCount(PointF start, const Segment& curve) {
    const auto secondDifference = [](PointF a, PointF b, PointF c) {
        return std::hypot(double{a.X} - 2.0 * b.X + c.X, double{a.Y} - 2.0 * b.Y + c.Y);
    };
    const double bend = std::max(secondDifference(start, curve.Control1, curve.Control2),
                                 secondDifference(curve.Control1, curve.Control2, curve.End));
    const double count = std::ceil(std::sqrt(6 * bend / (8 * kFlatness)));
    // Not-a-number fails the comparison too.
    return count >= 1 ? static_cast<int>(std::min(count, kMostLines)) : 1;
}

void AppendFlattened(std::vector<PointF>& points, PointF start, const Segment& curve) {
    const int count = LineCount(start, curve);
    for (int i = 1; i < count; ++i) {
        const double t = static_cast<double>(i) / count;
        const double s = 1 - t;
        const double b0 = s * s * s, b1 = 3 * s * s * t, b2 = 3 * s * t * t, b3 = t * t * t;
        const auto at = [&](float p0, float p1, float p2, float p3) {
            return static_cast<float>(b0 * p0 + b1 * p1 + b2 * p2 + b3 * p3);
        };
        points.push_back({at(start.X, curve.Control1.X, curve.Control2.X, curve.End.X),
                          at(start.Y, curve.Control1.Y, curve.Control2.Y, curve.End.Y)});
    }
    points.push_back(curve.End);
}

}  // namespace

struct Path::Data {
    FillMode Fill = FillMode::Alternate;
    std::vector<Figure> Figures{};
    bool NextOpensFigure = true;

    void AddClosed(Figure figure) {
        figure.Closed = true;
        Figures.push_back(std::move(figure));
        NextOpensFigure = true;
    }
};

Path::Path(FillMode fillMode) : data_(std::make_shared<Data>(Data{.Fill = fillMode})) {}

Path::Data& Path::Own() {
    if (data_.use_count() > 1)
        data_ = std::make_shared<Data>(*data_);
    return *data_;
}

bool Path::IsEmpty() const {
    return !data_ || data_->Figures.empty();
}

FillMode Path::Fill() const {
    return data_ ? data_->Fill : FillMode::Alternate;
}

void Path::StartFigure() {
    if (data_)
        Own().NextOpensFigure = true;
}

void Path::AddBezier(PointF start, PointF control1, PointF control2, PointF end) {
    if (!data_)
        return;
    Data& data = Own();
    if (data.NextOpensFigure)
        data.Figures.push_back({.Start = start});
    else if (data.Figures.back().End() != start)
        data.Figures.back().AddLine(start);
    data.Figures.back().AddCurve(control1, control2, end);
    data.NextOpensFigure = false;
}

void Path::AddEllipse(const RectF& box) {
    if (!data_)
        return;
    const double kappa = 4.0 / 3.0 * (std::sqrt(2.0) - 1);
    const float left = box.X, top = box.Y;
    const float right = box.X + box.Width, bottom = box.Y + box.Height;
    const double cx = (double{left} + right) / 2, rx = (double{right} - left) / 2;
    const double cy = (double{top} + bottom) / 2, ry = (double{bottom} - top) / 2;
    const auto middleX = static_cast<float>(cx), middleY = static_cast<float>(cy);
    const auto west = static_cast<float>(cx - kappa * rx);
    const auto east = static_cast<float>(cx + kappa * rx);
    const auto north = static_cast<float>(cy - kappa * ry);
    const auto south = static_cast<float>(cy + kappa * ry);

    Figure figure{.Start = {right, middleY}};
    figure.AddCurve({right, south}, {east, bottom}, {middleX, bottom});
    figure.AddCurve({west, bottom}, {left, south}, {left, middleY});
    figure.AddCurve({left, north}, {west, top}, {middleX, top});
    figure.AddCurve({east, top}, {right, north}, {right, middleY});
    Own().AddClosed(std::move(figure));
}

void Path::AddRectangle(const RectF& rect) {
    if (!(rect.Width > 0 && rect.Height > 0))
        return;
    const float right = rect.X + rect.Width, bottom = rect.Y + rect.Height;
    AddPolygon(
        std::vector<PointF>{{rect.X, rect.Y}, {right, rect.Y}, {right, bottom}, {rect.X, bottom}});
}

void Path::AddPolygon(std::span<const PointF> points) {
    if (!data_ || points.size() < 3)
        return;
    Figure figure{.Start = points.front()};
    for (PointF point : points.subspan(1))
        figure.AddLine(point);
    Own().AddClosed(std::move(figure));
}

void Path::CloseFigures() {
    if (!data_)
        return;
    Data& data = Own();
    for (Figure& figure : data.Figures)
        figure.Closed = true;
    data.NextOpensFigure = true;
}

void Path::Transform(const Matrix& matrix) {
    if (!IsEmpty())
        ForEachPoint(Own().Figures, [&](PointF& point) { point = matrix.Apply(point); });
}

RectF Path::WorldBounds() const {
    if (IsEmpty())
        return {};
    PointF low = data_->Figures.front().Start;
    PointF high = low;
    ForEachPoint(data_->Figures, [&](const PointF& point) {
        low = {std::min(low.X, point.X), std::min(low.Y, point.Y)};
        high = {std::max(high.X, point.X), std::max(high.Y, point.Y)};
    });
    return {low.X, low.Y, high.X - low.X, high.Y - low.Y};
}

std::vector<FlatFigure> Path::Flatten() const {
    std::vector<FlatFigure> flat;
    if (IsEmpty())
        return flat;
    for (const Figure& figure : data_->Figures) {
        FlatFigure& lines = flat.emplace_back();
        lines.Closed = figure.Closed;
        lines.Points.push_back(figure.Start);
        for (const Segment& segment : figure.Segments) {
            if (segment.IsCurve)
                AppendFlattened(lines.Points, lines.Points.back(), segment);
            else
                lines.Points.push_back(segment.End);
        }
    }
    return flat;
}

}  // namespace orbelle::graphics
