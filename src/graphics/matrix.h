// A plane transform without rotation: scale, then move.
#pragma once

#include "graphics/enums.h"
#include "graphics/geometry.h"

namespace orbelle::graphics {

// x' = ScaleX * x + OffsetX, y' = ScaleY * y + OffsetY. The identity when default-made.
struct Matrix {
    double ScaleX = 1;
    double ScaleY = 1;
    double OffsetX = 0;
    double OffsetY = 0;

    // Append: applied after what the matrix does so far; Prepend: before it.
    void Translate(double dx, double dy, MatrixOrder order = MatrixOrder::Prepend);
    void Scale(double sx, double sy, MatrixOrder order = MatrixOrder::Prepend);

    PointF Apply(PointF point) const;
};

}  // namespace orbelle::graphics
