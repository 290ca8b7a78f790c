#include "app/tool_hint.h"

#include "widgets/words.h"

namespace orbelle::app {

QString HintOf(editing::Tool tool) {
    using editing::Tool;
    switch (tool) {
        case Tool::Move:
            return Words::tr("Drag a layer to move it; arrow keys: by a pixel");
        case Tool::Pencil:
            return Words::tr("Drag to draw; click: one pixel");
        case Tool::Line:
            return Words::tr("Drag to draw a line");
        case Tool::Rectangle:
        case Tool::FilledRectangle:
            return Words::tr("Drag to draw; Shift: square");
        case Tool::Ellipse:
        case Tool::FilledEllipse:
            return Words::tr("Drag to draw; Shift: circle");
        case Tool::ColorPick:
            return Words::tr("Click to take a color from the page");
        case Tool::PencilEraser:
            return Words::tr("Drag to erase pixel by pixel");
        case Tool::BrushEraser:
            return Words::tr("Drag to erase softly");
        case Tool::SelectRectangle:
        case Tool::SelectEllipse:
            return Words::tr("Drag to select; Shift: add; click: end");
        case Tool::SelectPolygon:
            return Words::tr("Click points or drag; right click: close; Shift: add");
    }
    return {};
}

}  // namespace orbelle::app
