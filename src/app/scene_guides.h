// Thin lines that help to draw, over the scene and no part of it: one device pixel wide at every
// scale of the screen.
#pragma once

#include <QRect>

#include "editing/tool.h"
#include "graphics/geometry.h"

class QPainter;

namespace orbelle::app {

// The zoom from which the pixel grid is shown, scene pixels per page pixel.
inline constexpr double kGridZoom = 8;

// The page as it lies on the scene.
struct PageSight {
    graphics::RectI OnScene;  // document::PageOnScene
    int Width = 0;            // page pixels
    int Height = 0;
};

// Lines between the page's pixels, on the first device row and column of each but the first ones.
// They are dotted, a little darker and a little lighter in turn, and so are seen on every colour.
// `seen` is what of the scene has to be painted.
void DrawPixelGrid(QPainter& painter, const PageSight& page, const QRect& seen);

// The middles of the page that are mirrored over.
void DrawMirrorAxes(QPainter& painter, const PageSight& page, editing::MirrorAxes axes);

}  // namespace orbelle::app
