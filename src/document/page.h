// A page: its size and the stack of its layers.
#pragma once

#include <vector>

#include "document/icon_layer.h"

namespace orbelle::document {

inline constexpr int kNoLayer = -1;
inline constexpr int kMaxLayers = 5001;     // that a file may bring
inline constexpr int kMaxMadeLayers = 101;  // no command makes a stack of more
// What the New dialog and the page-size sliders allow; files and imports may bring larger pages.
inline constexpr int kMaxPageSide = 512;

struct Page {
    std::vector<IconLayer> Layers;  // index 0 is the bottom
    int SelectedLayer = kNoLayer;
    int Width = 0;  // page pixels
    int Height = 0;

    int LayerCount() const { return static_cast<int>(Layers.size()); }
    bool HasSelection() const { return SelectedLayer != kNoLayer; }
    // Only with a selected layer.
    IconLayer& Selected() { return Layers[static_cast<std::size_t>(SelectedLayer)]; }
    const IconLayer& Selected() const { return Layers[static_cast<std::size_t>(SelectedLayer)]; }
};

}  // namespace orbelle::document
