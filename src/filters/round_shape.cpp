#include "filters/round_shape.h"

#include <algorithm>

namespace orbelle::filters {

graphics::Path RoundShape(float x, float y, float width, float height, int radius) {
    const float r = static_cast<float>(radius);
    const float w = std::max(width - r, r);
    const float h = std::max(height - r, r);
    const float d = r / 2;
    const float e = static_cast<float>(radius / 2);
    const float right = x + w + r;
    const float bottom = y + h + r;

    graphics::Path path(graphics::FillMode::Alternate);
    path.StartFigure();
    path.AddBezier({x, y + r}, {x, y + d}, {x + d, y}, {x + r, y});
    path.AddBezier({x + r, y}, {x + r, y}, {x + w, y}, {x + w, y});
    path.AddBezier({x + w, y}, {x + w + e, y}, {right, y + e}, {right, y + r});
    path.AddBezier({right, y + r}, {right, y + h}, {right, y + r}, {right, y + h});
    path.AddBezier({right, y + h}, {right, y + h + d}, {x + w + d, bottom}, {x + w, bottom});
    path.AddBezier({x + w, bottom}, {x + w, bottom}, {x + r, bottom}, {x + r, bottom});
    path.AddBezier({x + r, bottom}, {x + d, bottom}, {x, y + h + d}, {x, y + h});
    path.AddBezier({x, y + h}, {x, y + h}, {x, y + r}, {x, y + r});
    path.CloseFigures();
    return path;
}

graphics::Path IosPlatePath(int width, int height, float x, float y) {
    return RoundShape(x, y, static_cast<float>(width), static_cast<float>(height),
                      std::min(width, height) / 6);
}

}  // namespace orbelle::filters
