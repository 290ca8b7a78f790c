#include "graphics/matrix.h"

namespace orbelle::graphics {

void Matrix::Translate(double dx, double dy, MatrixOrder order) {
    const bool append = order == MatrixOrder::Append;
    OffsetX += append ? dx : ScaleX * dx;
    OffsetY += append ? dy : ScaleY * dy;
}

void Matrix::Scale(double sx, double sy, MatrixOrder order) {
    ScaleX *= sx;
    ScaleY *= sy;
    if (order == MatrixOrder::Append) {
        OffsetX *= sx;
        OffsetY *= sy;
    }
}

PointF Matrix::Apply(PointF point) const {
    return {static_cast<float>(ScaleX * point.X + OffsetX),
            static_cast<float>(ScaleY * point.Y + OffsetY)};
}

}  // namespace orbelle::graphics
