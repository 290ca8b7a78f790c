// Outlines made of lines and cubic Bézier curves.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "graphics/enums.h"
#include "graphics/geometry.h"
#include "graphics/matrix.h"

namespace orbelle::graphics {

// A closed polygon or open polyline that stands for one figure of a path.
struct FlatFigure {
    std::vector<PointF> Points;
    bool Closed = false;
};

// A value with shared contents, like Bitmap. A default-made Path is the zero handle; one made with
// a fill mode exists and may be empty.
class Path {
public:
    Path() = default;
    explicit Path(FillMode fillMode);

    bool IsNull() const { return !data_; }
    bool IsEmpty() const;
    FillMode Fill() const;

    // The next line or curve opens a new figure.
    void StartFigure();
    // Joined to the current figure's end by a line when it does not start there.
    void AddBezier(PointF start, PointF control1, PointF control2, PointF end);
    // Closed figures of their own. An ellipse is four Bézier curves from its right-most point on,
    // clockwise on screen, with control points 4/3 (sqrt 2 - 1) of the radius away.
    void AddEllipse(const RectF& box);
    // Zero or negative width or height: nothing.
    void AddRectangle(const RectF& rect);
    // Fewer than three points: nothing.
    void AddPolygon(std::span<const PointF> points);
    // Closes every open figure.
    void CloseFigures();

    void Transform(const Matrix& matrix);

    // The box around all points, control points included; all zero when empty.
    RectF WorldBounds() const;

    // Curves replaced by lines, at most 0.1 pixel away.
    std::vector<FlatFigure> Flatten() const;

private:
    struct Data;
    Data& Own();
    std::shared_ptr<Data> data_;
};

}  // namespace orbelle::graphics
