// What exists only between the press and the release of a drag: one record a kind of tool.
#pragma once

#include <variant>
#include <vector>

#include "document/icon_layer.h"
#include "document/selection.h"
#include "document/view.h"
#include "graphics/bitmap.h"
#include "graphics/geometry.h"

namespace orbelle::editing {

// On the scene; `Press` in scene pixels.
struct MoveDrag {
    graphics::PointF Press;
    graphics::RectF Before;  // the layer's Rect
};

struct StrokeDrag {
    graphics::PointF Press;
    graphics::Bitmap Before;                 // the layer's picture
    std::vector<graphics::PointF> Freehand;  // the pencil's points, layer pixels
    graphics::RectF Shape{};                 // drawn last, page pixels; the pencil has none
};

struct EraserDrag {
    graphics::PointF Last;  // where the eraser was set down last, scene pixels
};

struct FrameSelectionDrag {
    graphics::PointF Press;  // brought onto the page
    document::Selection Before;
    graphics::RectF Box{};  // since the first move, page pixels
};

struct PolygonSelectionDrag {};

// On a slider of the selected layer.
struct OpacityDrag {};

struct AdjustmentDrag {
    graphics::Bitmap Before;  // every step works on this
};

struct ScaleDrag {
    graphics::RectF Before;
};

// On a page-size slider: what it changes, as it was at the press.
struct PageSizeDrag {
    int Width = 0;
    int Height = 0;
    bool Modified = false;
    bool PageSizeChanged = false;
    document::ScrollBar HorizontalScroll;
    document::ScrollBar VerticalScroll;
};

using Drag =
    std::variant<std::monostate, MoveDrag, StrokeDrag, EraserDrag, FrameSelectionDrag,
                 PolygonSelectionDrag, OpacityDrag, AdjustmentDrag, ScaleDrag, PageSizeDrag>;

}  // namespace orbelle::editing
