// What is drawn over the scene and is no part of it: the frame of the selected layer, the edge of
// the selection, what the tools show. All are seen on every picture: light beside dark.
#pragma once

#include <QRect>
#include <vector>

#include "app/scene_guides.h"
#include "editing/overlays.h"
#include "graphics/region.h"

class QPainter;

namespace orbelle::app {

// The painter works in scene pixels in all of these; lines are `width` of them wide.

// A light line between two dark ones, the middle one along the inner edge of `frame`: equally far
// from the layer on all sides.
void DrawLayerFrame(QPainter& painter, const graphics::RectI& frame, int width);

// An eraser's brush has a second, faint ring where it ends to erase.
void DrawOverlays(QPainter& painter, const editing::Overlays& overlays, int width);

// The edge of what is selected, in light and dark dashes that can walk along it.
class SelectionEdge {
public:
    // Of a page of that size; what is selected off the page has no edge.
    void Follow(const graphics::Region& region, int pageWidth, int pageHeight);
    void Clear() { edges_.clear(); }
    bool IsEmpty() const { return edges_.empty(); }

    // After `step` steps of the walk.
    void Draw(QPainter& painter, const PageSight& page, int width, int step) const;

private:
    enum class Side { Top, Bottom, Left, Right };
    // Page pixels from `From` to `To` along the line before pixel `At`.
    struct Edge {
        Side Of;
        int At, From, To;
    };
    std::vector<Edge> edges_;
};

}  // namespace orbelle::app
