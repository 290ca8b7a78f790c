#include "app/shortcuts.h"

#include "editing/buttons.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

namespace tool_buttons = editing::tool_buttons;

editing::Command Tool(int button) {
    return [button](editing::Editor& editor) { ChooseToolByKey(editor, button); };
}

}  // namespace

std::vector<Shortcut> WindowShortcuts() {
    return {
        {"Zoom In", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, editing::ZoomIn},
        {"Zoom Out", {Qt::CTRL | Qt::Key_Minus}, editing::ZoomOut},
        {"Original Size", {Qt::CTRL | Qt::Key_0}, editing::OriginalSize},
        {"Move tool", {Qt::Key_V}, Tool(tool_buttons::Move)},
        {"Selection tool", {Qt::Key_M}, Tool(tool_buttons::Selection)},
        {"Pencil tool", {Qt::Key_B}, Tool(tool_buttons::Pencil)},
        {"Line tool", {Qt::Key_L}, Tool(tool_buttons::Line)},
        {"Rectangle tool", {Qt::Key_R}, Tool(tool_buttons::Rectangle)},
        {"Filled Rectangle tool", {Qt::SHIFT | Qt::Key_R}, Tool(tool_buttons::FilledRectangle)},
        {"Ellipse tool", {Qt::Key_O}, Tool(tool_buttons::Ellipse)},
        {"Filled Ellipse tool", {Qt::SHIFT | Qt::Key_O}, Tool(tool_buttons::FilledEllipse)},
        {"Color Pick tool", {Qt::Key_I}, Tool(tool_buttons::ColorPick)},
        {"Erase tool", {Qt::Key_E}, Tool(tool_buttons::Eraser)},
        {"Exchange colors", {Qt::Key_X}, editing::ExchangeColor},
    };
}

}  // namespace orbelle::app
