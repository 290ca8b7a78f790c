#include "app/tool_hint.h"

#include <QObject>

namespace orbelle::app {

QString HintOf(editing::Tool tool) {
    using editing::Tool;
    switch (tool) {
        case Tool::Move:
            return QObject::tr("Drag a layer to move it; arrow keys: by a pixel");
        case Tool::Pencil:
            return QObject::tr("Drag to draw; click: one pixel");
        case Tool::Line:
            return QObject::tr("Drag to draw a line");
        case Tool::Rectangle:
        case Tool::FilledRectangle:
            return QObject::tr("Drag to draw; Shift: square");
        case Tool::Ellipse:
        case Tool::FilledEllipse:
            return QObject::tr("Drag to draw; Shift: circle");
        case Tool::ColorPick:
            return QObject::tr("Click to take a color from the page");
        case Tool::PencilEraser:
            return QObject::tr("Drag to erase pixel by pixel");
        case Tool::BrushEraser:
            return QObject::tr("Drag to erase softly");
        case Tool::SelectRectangle:
        case Tool::SelectEllipse:
            return QObject::tr("Drag to select; Shift: add; click: end");
        case Tool::SelectPolygon:
            return QObject::tr("Click points or drag; right click: close; Shift: add");
    }
    return {};
}

}  // namespace orbelle::app
