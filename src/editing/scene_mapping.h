// From the pointer's place on the scene to pixels of the page and of the selected layer.
#pragma once

#include "editing/editor.h"
#include "graphics/geometry.h"

namespace orbelle::editing {

// How the page lies on the scene while one event is handled: the page's top left corner in scene
// pixels, and scene pixels per page pixel.
struct SceneMapping {
    double PageOffsetX = 0;
    double PageOffsetY = 0;
    double Zoom = 1;
};

SceneMapping MappingOf(const Editor& editor);

// The page pixel under a scene point; it may lie outside the page.
graphics::PointF ScreenToPage(const SceneMapping& mapping, float x, float y);

// The same in pixels of a layer's image at scale 1; `layer` is its Rect.
graphics::PointF ScreenToLayer(const SceneMapping& mapping, const graphics::RectF& layer, float x,
                               float y);

// The nearest point of the page as it lies on the scene, right and bottom edges included.
graphics::PointF ClampToScene(const Editor& editor, float x, float y);

double Distance(graphics::PointF a, graphics::PointF b);

}  // namespace orbelle::editing
