#include "editing/scene_mapping.h"

#include <algorithm>
#include <cmath>

#include "document/view.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

double PixelAt(double scene, double pageOffset, double layer, double zoom) {
    return std::floor((scene - pageOffset - layer * zoom) / zoom);
}

float ClampAxis(float value, double first, double length) {
    return static_cast<float>(std::clamp<double>(value, first, first + length));
}

}  // namespace

SceneMapping MappingOf(const Editor& editor) {
    return {static_cast<double>(document::PageOffsetX(editor.Page(), editor.View)),
            static_cast<double>(document::PageOffsetY(editor.Page(), editor.View)),
            editor.View.Zoom};
}

PointF ScreenToPage(const SceneMapping& mapping, float x, float y) {
    return ScreenToLayer(mapping, {}, x, y);
}

PointF ScreenToLayer(const SceneMapping& mapping, const graphics::RectF& layer, float x, float y) {
    return {static_cast<float>(PixelAt(x, mapping.PageOffsetX, layer.X, mapping.Zoom)),
            static_cast<float>(PixelAt(y, mapping.PageOffsetY, layer.Y, mapping.Zoom))};
}

PointF ClampToScene(const Editor& editor, float x, float y) {
    const SceneMapping mapping = MappingOf(editor);
    return {ClampAxis(x, mapping.PageOffsetX, editor.Page().Width * mapping.Zoom),
            ClampAxis(y, mapping.PageOffsetY, editor.Page().Height * mapping.Zoom)};
}

double Distance(PointF a, PointF b) {
    return std::hypot(double{a.X} - b.X, double{a.Y} - b.Y);
}

}  // namespace orbelle::editing
