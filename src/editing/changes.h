// What a command has changed: noted by the command, shown by Run, told to the observer once.
#pragma once

#include <optional>
#include <string>

#include "graphics/geometry.h"

namespace orbelle::editing {

// A tip that fits now, by its number (tips.h); `AboutLayers`: and one about adding layers.
struct TipRequest {
    int Number = 0;
    bool AboutLayers = false;
};

struct Changes {
    bool Pixels = false;    // what the page shows; the scene, too
    bool Scene = false;     // only how the page lies there, or what is selected
    bool Stack = false;     // the layers, their order or a thumbnail
    bool Controls = false;  // sliders, states of commands, colours; found out by Run
    bool Overlays = false;  // found out by Run
    bool Title = false;

    bool HideTips = false;    // the first balloon closes now
    bool ExpireTips = false;  // open balloons close at their next tick
    std::optional<TipRequest> Tip;
    // The layer order menu, wanted at this place of the scene, scene pixels.
    std::optional<graphics::PointF> LayerMenu;
    // What the user must be told although the command went well; empty: nothing.
    std::string Message;
};

// The stack changed, and with it what the page shows.
inline void NoteStack(Changes& changes) {
    changes.Stack = true;
    changes.Pixels = true;
}

}  // namespace orbelle::editing
