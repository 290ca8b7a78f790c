#include "editing/tools/polygon.h"

#include "editing/scene_mapping.h"
#include "graphics/drawing_context.h"

namespace orbelle::editing {

using graphics::PointF;

namespace {

PointF OnScene(const SceneMapping& mapping, PointF page) {
    return {static_cast<float>(page.X * mapping.Zoom + mapping.PageOffsetX),
            static_cast<float>(page.Y * mapping.Zoom + mapping.PageOffsetY)};
}

}  // namespace

void StretchRubberBand(Editor& editor, const Pointer& pointer) {
    if (editor.PolygonPoints.empty())
        return;
    editor.Overlays.RubberBand = {
        true, OnScene(MappingOf(editor), editor.PolygonPoints.back()), {pointer.X, pointer.Y}};
}

void ClosePolygon(Editor& editor) {
    if (!editor.PolygonPoints.empty()) {
        editor.PolygonPoints.push_back(editor.PolygonPoints.front());
        editor.Selection.AddPolygon(editor.PolygonPoints);
    }
    DropPolygon(editor);
    editor.Changed.Scene = true;
}

void DropPolygon(Editor& editor) {
    editor.PolygonPoints.clear();
    editor.Overlays.RubberBand.Visible = false;
}

void DrawOpenPolygon(Editor& editor) {
    constexpr graphics::Argb kOutline = graphics::MakeArgb(255, 0, 0, 0);
    const SceneMapping mapping = MappingOf(editor);
    std::vector<PointF> outline;
    for (const PointF& point : editor.PolygonPoints)
        outline.push_back(OnScene(mapping, point));
    graphics::DrawingContext(editor.Scene)
        .DrawPolygon({graphics::SolidBrush{kOutline}, 1}, outline);
}

}  // namespace orbelle::editing
