// The tools and what they draw with, by the numbers that the product gives them.
#pragma once

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

enum class FillKind {
    Solid = 0,
    HorizontalGradient = 1,
    VerticalGradient = 2,
    RadialGradient = 3,
};

}  // namespace orbelle::editing
