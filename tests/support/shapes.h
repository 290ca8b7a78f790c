// Paths of one figure, for tests.
#pragma once

#include <vector>

#include "graphics/path.h"

namespace orbelle::testing {

inline graphics::Path EllipsePath(const graphics::RectF& box,
                                  graphics::FillMode mode = graphics::FillMode::Alternate) {
    graphics::Path path(mode);
    path.AddEllipse(box);
    return path;
}

inline graphics::Path RectanglePath(const graphics::RectF& rect,
                                    graphics::FillMode mode = graphics::FillMode::Alternate) {
    graphics::Path path(mode);
    path.AddRectangle(rect);
    return path;
}

inline graphics::Path PolygonPath(const std::vector<graphics::PointF>& points,
                                  graphics::FillMode mode = graphics::FillMode::Alternate) {
    graphics::Path path(mode);
    path.AddPolygon(points);
    return path;
}

// The pixels whose coordinates have an even sum.
inline std::vector<graphics::RectI> ChessPixels(int side) {
    std::vector<graphics::RectI> pixels;
    for (int y = 0; y < side; ++y)
        for (int x = y % 2; x < side; x += 2)
            pixels.push_back({x, y, 1, 1});
    return pixels;
}

}  // namespace orbelle::testing
