// The tools and what they draw with, by the numbers that the product gives them.
#pragma once

#include <array>

#include "graphics/color.h"

namespace orbelle::editing {

enum class Tool {
    Move = 0,
    Pencil = 1,
    Line = 2,
    Rectangle = 3,
    Ellipse = 4,
    FilledRectangle = 5,
    FilledEllipse = 6,
    ColorPick = 7,
    PencilEraser = 8,
    SelectRectangle = 9,
    SelectEllipse = 10,
    SelectPolygon = 11,
    BrushEraser = 12,
};

constexpr bool IsSelectionTool(Tool tool) {
    return tool >= Tool::SelectRectangle && tool <= Tool::SelectPolygon;
}

constexpr bool IsEraser(Tool tool) {
    return tool == Tool::PencilEraser || tool == Tool::BrushEraser;
}

enum class FillKind {
    Solid = 0,
    HorizontalGradient = 1,
    VerticalGradient = 2,
    RadialGradient = 3,
};

// Mirror drawing: which middle of the page the drawing tools' marks are mirrored over.
struct MirrorAxes {
    bool LeftRight = false;
    bool TopBottom = false;
    bool operator==(const MirrorAxes&) const = default;
};

// The pop-ups of the tool box.
enum class Popup { None, FillBar, SelectionBar, EraserBar };

// What the tools work with besides the sliders.
struct ToolSettings {
    Tool InUse = Tool::Move;
    Tool SelectionKind = Tool::SelectRectangle;  // that the Selection button stands for
    Tool EraserKind = Tool::PencilEraser;        // that the Erase button stands for
    editing::FillKind FillKind = editing::FillKind::Solid;
    // Foreground, background: black and white.
    std::array<graphics::Argb, 2> Colors{graphics::MakeArgb(255, 0, 0, 0),
                                         graphics::MakeArgb(255, 255, 255, 255)};
    int ActiveColor = 0;  // the one in use
    MirrorAxes Mirror;
    Popup OpenPopup = Popup::None;

    bool operator==(const ToolSettings&) const = default;
};

}  // namespace orbelle::editing
