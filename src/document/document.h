// The open document: a page and the stack of its layers.
#pragma once

#include <filesystem>
#include <vector>

#include "document/icon_layer.h"
#include "graphics/color.h"

namespace orbelle::document {

inline constexpr int kNoLayer = -1;
inline constexpr int kMaxLayers = 5001;
// What the New dialog and the page-size sliders allow; files and imports may bring larger pages.
inline constexpr int kMaxPageSide = 512;

struct Document {
    std::vector<IconLayer> Layers;  // index 0 is the bottom
    int SelectedLayer = kNoLayer;
    int PageWidth = 0;  // page pixels
    int PageHeight = 0;
    graphics::Argb PageBackground = 0;   // 0: transparent
    std::filesystem::path DocumentPath;  // of the .volf file; empty until saved or opened
    bool Modified = false;

    int LayerCount() const { return static_cast<int>(Layers.size()); }
    bool HasSelection() const { return SelectedLayer != kNoLayer; }
    // Only with a selected layer.
    IconLayer& Selected() { return Layers[static_cast<std::size_t>(SelectedLayer)]; }
    const IconLayer& Selected() const { return Layers[static_cast<std::size_t>(SelectedLayer)]; }
};

}  // namespace orbelle::document
