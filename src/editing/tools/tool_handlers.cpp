#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

const ToolHandlers& HandlersOf(Tool tool) {
    switch (tool) {
        case Tool::Move:
            break;
        case Tool::Pencil:
            return kPencilTool;
        case Tool::Line:
        case Tool::Rectangle:
        case Tool::Ellipse:
        case Tool::FilledRectangle:
        case Tool::FilledEllipse:
            return kShapeTool;
        case Tool::ColorPick:
            return kColorPickTool;
        case Tool::PencilEraser:
            return kPencilEraserTool;
        case Tool::BrushEraser:
            return kBrushEraserTool;
        case Tool::SelectRectangle:
        case Tool::SelectEllipse:
            return kFrameSelectionTool;
        case Tool::SelectPolygon:
            return kPolygonSelectionTool;
    }
    return kMoveTool;
}

}  // namespace orbelle::editing
