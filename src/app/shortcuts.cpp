#include "app/shortcuts.h"

#include "editing/buttons.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"
#include "editing/view_commands.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

namespace tool_buttons = editing::tool_buttons;

editing::Command Tool(int button) {
    return [button](editing::Editor& editor) { ChooseToolByKey(editor, button); };
}

}  // namespace

std::vector<Shortcut> WindowShortcuts() {
    return {
        {Words::tr("Zoom In"),
         {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
         editing::ZoomIn},
        {Words::tr("Zoom Out"), {Qt::CTRL | Qt::Key_Minus}, editing::ZoomOut},
        {Words::tr("Original Size"), {Qt::CTRL | Qt::Key_0}, editing::OriginalSize},
        {Words::tr("Move tool"), {Qt::Key_V}, Tool(tool_buttons::Move)},
        {Words::tr("Selection tool"), {Qt::Key_M}, Tool(tool_buttons::Selection)},
        {Words::tr("Pencil tool"), {Qt::Key_B}, Tool(tool_buttons::Pencil)},
        {Words::tr("Line tool"), {Qt::Key_L}, Tool(tool_buttons::Line)},
        {Words::tr("Rectangle tool"), {Qt::Key_R}, Tool(tool_buttons::Rectangle)},
        {Words::tr("Filled Rectangle tool"),
         {Qt::SHIFT | Qt::Key_R},
         Tool(tool_buttons::FilledRectangle)},
        {Words::tr("Ellipse tool"), {Qt::Key_O}, Tool(tool_buttons::Ellipse)},
        {Words::tr("Filled Ellipse tool"),
         {Qt::SHIFT | Qt::Key_O},
         Tool(tool_buttons::FilledEllipse)},
        {Words::tr("Color Pick tool"), {Qt::Key_I}, Tool(tool_buttons::ColorPick)},
        {Words::tr("Erase tool"), {Qt::Key_E}, Tool(tool_buttons::Eraser)},
        {Words::tr("Exchange colors"), {Qt::Key_X}, editing::ExchangeColor},
    };
}

}  // namespace orbelle::app
