// The entry points of the tools on the scene; each tool has a file of its own in this folder.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A mouse event on the scene.
struct Pointer {
    int Button = 1;  // 1 is the left one
    int Shift = 0;   // 1: Shift alone is held; any other number: other keys
    float X = 0;     // scene pixels
    float Y = 0;

    bool IsShiftAlone() const { return Shift == 1; }
};

// What is left to do once a tool has ended its drag.
enum class AfterRelease { Compose, HideTips };

struct ToolHandlers {
    // A left press. There is at least one layer. Begins a drag by setting Editor::Drag.
    void (*Press)(Editor&, const Pointer&);
    // A move of that drag. The tool may bring the position onto the page.
    void (*Move)(Editor&, Pointer&);
    // The release that ends it, with any button.
    AfterRelease (*Release)(Editor&, const Pointer&);
};

extern const ToolHandlers kMoveTool;
extern const ToolHandlers kPencilTool;
extern const ToolHandlers kShapeTool;  // line, rectangles, ellipses
extern const ToolHandlers kColorPickTool;
extern const ToolHandlers kPencilEraserTool;
extern const ToolHandlers kBrushEraserTool;
extern const ToolHandlers kFrameSelectionTool;  // rectangle and ellipse
extern const ToolHandlers kPolygonSelectionTool;

const ToolHandlers& HandlersOf(Tool tool);

}  // namespace orbelle::editing
