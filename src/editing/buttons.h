// The numbers of the buttons on the bars of the window, and which tool stands where.
#pragma once

#include "editing/tool.h"

namespace orbelle::editing {

namespace main_buttons {
enum {
    New = 1,
    Open,
    Import,
    Save,
    Undo = 6,
    Redo,
    ZoomIn = 9,
    ZoomOut,
    OriginalSize,
    Website = 13
};
}
namespace tool_buttons {  // the tool tips of 6 to 9 are crossed (docs/oddities.md)
enum {
    Move = 1,
    Selection,
    Pencil = 4,
    Line,
    Ellipse,
    FilledEllipse,
    Rectangle,
    FilledRectangle,
    ColorPick = 11,
    Eraser
};
}
namespace layer_buttons {
enum { Add = 1, Remove, Hide, SetOrder = 5, MergeDown };
}
namespace selection_buttons {
enum { Rectangle = 1, Ellipse, Polygon };
}
namespace eraser_buttons {
enum { Brush = 1, Pencil };
}

// The button of the tool box that stands for the tool.
constexpr int ButtonOf(Tool tool) {
    switch (tool) {
        case Tool::Move:
            break;
        case Tool::Pencil:
            return tool_buttons::Pencil;
        case Tool::Line:
            return tool_buttons::Line;
        case Tool::Rectangle:
            return tool_buttons::Rectangle;
        case Tool::Ellipse:
            return tool_buttons::Ellipse;
        case Tool::FilledRectangle:
            return tool_buttons::FilledRectangle;
        case Tool::FilledEllipse:
            return tool_buttons::FilledEllipse;
        case Tool::ColorPick:
            return tool_buttons::ColorPick;
        case Tool::PencilEraser:
        case Tool::BrushEraser:
            return tool_buttons::Eraser;
        case Tool::SelectRectangle:
        case Tool::SelectEllipse:
        case Tool::SelectPolygon:
            return tool_buttons::Selection;
    }
    return tool_buttons::Move;
}

// The tool of a button of the selection bar, and of the eraser bar.
constexpr Tool SelectionToolOf(int button) {
    return static_cast<Tool>(static_cast<int>(Tool::SelectRectangle) + button - 1);
}
constexpr Tool EraserToolOf(int button) {
    return button == eraser_buttons::Brush ? Tool::BrushEraser : Tool::PencilEraser;
}

// The button of its pop-up that stands for a selection tool or an eraser.
constexpr int PopupButtonOf(Tool tool) {
    if (IsSelectionTool(tool))
        return static_cast<int>(tool) - static_cast<int>(Tool::SelectRectangle) + 1;
    return tool == Tool::BrushEraser ? eraser_buttons::Brush : eraser_buttons::Pencil;
}

}  // namespace orbelle::editing
