#include "editing/scene_mapping.h"

#include <cmath>

#include "document/view.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

double PixelAt(double scene, double pageOffset, double layer, double zoom) {
    return std::floor((scene - pageOffset - layer * zoom) / zoom);
}

float ClampAxis(float value, int scene, int page, double ratio, double zoom) {
    const double first = (scene - page * zoom) * ratio;
    if (value < first)
        return static_cast<float>(first);
    const double last = page * zoom + first;
    return value > last ? static_cast<float>(last) : value;
}

}  // namespace

SceneMapping MappingAtPress(const Editor& editor) {
    return {
        static_cast<double>(
            graphics::RoundToEven(document::PageOffsetX(editor.Page(), editor.View))),
        static_cast<double>(
            graphics::RoundToEven(document::PageOffsetY(editor.Page(), editor.View))),
        editor.View.Zoom,
    };
}

SceneMapping MappingOf(const Editor& editor) {
    return {
        static_cast<float>(document::PageOffsetX(editor.Page(), editor.View)),
        static_cast<float>(document::PageOffsetY(editor.Page(), editor.View)),
        editor.View.Zoom,
    };
}

PointF ScreenToPage(const SceneMapping& mapping, float x, float y) {
    return ScreenToLayer(mapping, {}, x, y);
}

PointF ScreenToLayer(const SceneMapping& mapping, const graphics::RectF& layer, float x, float y) {
    return {static_cast<float>(PixelAt(x, mapping.PageOffsetX, layer.X, mapping.Zoom)),
            static_cast<float>(PixelAt(y, mapping.PageOffsetY, layer.Y, mapping.Zoom))};
}

PointF ClampToScene(const Editor& editor, float x, float y) {
    const document::View& view = editor.View;
    return {ClampAxis(x, view.SceneWidth, editor.Page().Width,
                      document::ScrollRatio(view.HorizontalScroll), view.Zoom),
            ClampAxis(y, view.SceneHeight, editor.Page().Height,
                      document::ScrollRatio(view.VerticalScroll), view.Zoom)};
}

double Distance(PointF a, PointF b) {
    return std::hypot(double{a.X} - b.X, double{a.Y} - b.Y);
}

}  // namespace orbelle::editing
