// Where a drag has come to, in numbers for the user.
#pragma once

#include <optional>

#include "editing/editor_state.h"
#include "graphics/geometry.h"

namespace orbelle::editing {

struct DragReadout {
    // The frame of a selection, the shape that is drawn - its box, without the half of the pen that
    // goes beyond it -, or the layer that is moved; page pixels.
    graphics::RectI Area;
    bool IsMove = false;
    // How far the layer was moved, page pixels.
    int MovedX = 0;
    int MovedY = 0;
    bool operator==(const DragReadout&) const = default;
};

// No value without a drag that has a place or a size, and before a frame or a shape has one.
std::optional<DragReadout> ReadoutOf(const EditorState& editor);

}  // namespace orbelle::editing
