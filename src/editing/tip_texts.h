// What the balloons say, and beside what they stand.
#pragma once

#include <optional>
#include <string>

#include "editing/editor.h"

namespace orbelle::editing {

// The thing that a balloon points at.
enum class TipPlace {
    NewAndOpenButtons,  // of MainBar
    ImportButton,
    UndoButtons,
    SelectedLayer,  // on the scene
    Page,           // on the scene
    OpacitySlider,
    RectangleButton,  // of the tools
    AddLayerButton,
    ColorWells,
    BrushOptions,
};

struct Tip {
    std::string Text;
    TipPlace Place = TipPlace::Page;
};

// Both balloons after a tip was asked for. A balloon without a value stays as it is; one whose tip
// is hidden closes.
struct TipChoice {
    std::optional<Tip> FirstBalloon;
    bool FirstVisible = false;
    std::optional<Tip> SecondBalloon;
    std::optional<bool> SecondVisible;
};

// The tip of that number for the editor's state. `pick`, 1 or 2, chooses between two texts where
// there are two. `showLayerTips` adds a second balloon to tip 3.
TipChoice ChooseTips(const Editor& editor, int tip, bool showLayerTips, int pick);

}  // namespace orbelle::editing
