// Outlines that the host draws over the scene; they are no part of the page.
#pragma once

#include "graphics/geometry.h"

namespace orbelle::editing {

// All in scene pixels.
struct OverlayShape {
    bool Visible = false;
    bool IsOval = false;
    graphics::RectF Rect;
    bool operator==(const OverlayShape&) const = default;
};

struct OverlayLine {
    bool Visible = false;
    graphics::PointF Start;
    graphics::PointF End;
    bool operator==(const OverlayLine&) const = default;
};

struct Overlays {
    OverlayShape PointerMark;     // the page pixel under the pointer, or the brush
    OverlayLine RubberBand;       // from the last point of an open polygon to the pointer
    OverlayShape SelectionFrame;  // the frame of a selection being dragged
    bool operator==(const Overlays&) const = default;
};

}  // namespace orbelle::editing
