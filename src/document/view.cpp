#include "document/view.h"

#include <cmath>

namespace orbelle::document {

double RoundToTenth(double value) {
    // The text form works on decimal digits: 0.35 is a half there though its double lies below.
    const double tenths = std::floor(std::abs(value) * 10 + 0.5 + 1e-9) / 10;
    return std::copysign(tenths, value);
}

double ScrollRatio(const ScrollBar& bar) {
    return bar.Max == 0 ? 0 : RoundToTenth(static_cast<double>(bar.Value) / bar.Max);
}

int PageOffset(const ScrollBar& bar, int scene, int page, double zoom) {
    return static_cast<int>(ScrollRatio(bar) * (scene - page * zoom));
}

int PageOffsetX(const Page& page, const View& view) {
    return PageOffset(view.HorizontalScroll, view.SceneWidth, page.Width, view.Zoom);
}

int PageOffsetY(const Page& page, const View& view) {
    return PageOffset(view.VerticalScroll, view.SceneHeight, page.Height, view.Zoom);
}

}  // namespace orbelle::document
