// The tools, what they draw with, and the colours in use.
#include "cli/verb_table.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"

namespace orbelle::cli {
namespace {

namespace tool_buttons = editing::tool_buttons;
namespace selection_buttons = editing::selection_buttons;
namespace eraser_buttons = editing::eraser_buttons;

using editing::Editor;

constexpr int kMaxLineWidth = 255;
constexpr int kMaxBrush = 100;

constexpr std::string_view kWells[] = {"foreground", "background"};
constexpr std::string_view kFills[] = {"solid", "horizontal", "vertical", "radial"};

// A button of the tool column, and one of the pop-up that it opens.
struct ToolName {
    std::string_view Name;
    int Button;
    void (*Choose)(Editor&, int button) = nullptr;
    int PopupButton = 0;
};

constexpr ToolName kTools[] = {
    {"move", tool_buttons::Move},
    {"pencil", tool_buttons::Pencil},
    {"line", tool_buttons::Line},
    {"rectangle", tool_buttons::Rectangle},
    {"ellipse", tool_buttons::Ellipse},
    {"filled-rectangle", tool_buttons::FilledRectangle},
    {"filled-ellipse", tool_buttons::FilledEllipse},
    {"pick", tool_buttons::ColorPick},
    {"pencil-eraser", tool_buttons::Eraser, editing::ChooseEraser, eraser_buttons::Pencil},
    {"brush-eraser", tool_buttons::Eraser, editing::ChooseEraser, eraser_buttons::Brush},
    {"select-rectangle", tool_buttons::Selection, editing::ChooseSelection,
     selection_buttons::Rectangle},
    {"select-ellipse", tool_buttons::Selection, editing::ChooseSelection,
     selection_buttons::Ellipse},
    {"select-polygon", tool_buttons::Selection, editing::ChooseSelection,
     selection_buttons::Polygon},
};

template <int kWell>
Action ReadWellColor(Words& words) {
    return [color = words.Color("COLOUR")](Workspace& workspace) {
        editing::SetWellColor(workspace.Editor, kWell, color);
    };
}

Action ReadActive(Words& words) {
    return [well = static_cast<int>(words.Choice("WELL", kWells))](Workspace& workspace) {
        editing::UseColorWell(workspace.Editor, well);
    };
}

Action ReadSwap(Words&) {
    return [](Workspace& workspace) { editing::ExchangeColor(workspace.Editor); };
}

Action ReadFill(Words& words) {
    const auto kind = static_cast<editing::FillKind>(words.Choice("KIND", kFills));
    return [kind](Workspace& workspace) { editing::ChooseFill(workspace.Editor, kind); };
}

Action ReadLineWidth(Words& words) {
    return [width = words.Integer("N", 1, kMaxLineWidth)](Workspace& workspace) {
        if (!workspace.Editor.Controls.LineWidth.Enabled)
            throw Failure("the tool in use has no line width");
        editing::ChangeLineWidth(workspace.Editor, width);
    };
}

Action ReadBrushSize(Words& words) {
    return [size = words.Integer("N", 1, kMaxBrush)](Workspace& workspace) {
        editing::ChangeBrushSize(workspace.Editor, size);
    };
}

Action ReadBrushOpacity(Words& words) {
    return [opacity = words.Integer("N", 1, kMaxBrush)](Workspace& workspace) {
        editing::ChangeBrushOpacity(workspace.Editor, opacity);
    };
}

Action ReadTool(Words& words) {
    return [&tool = words.Entry("NAME", kTools)](Workspace& workspace) {
        Editor& editor = workspace.Editor;
        if (!editor.Controls.ToolBox[static_cast<std::size_t>(tool.Button)].Enabled)
            throw Failure("there is no document");
        editing::ClickToolButton(editor, tool.Button);
        if (tool.Choose)
            tool.Choose(editor, tool.PopupButton);
    };
}

constexpr Verb kVerbs[] = {
    {"foreground", "COLOUR", "the foreground colour: #RRGGBB or #AARRGGBB", ReadWellColor<0>},
    {"background-colour", "COLOUR", "the background colour", ReadWellColor<1>},
    {"active", "foreground|background", "the colour in use", ReadActive},
    {"swap", "", "exchange the two colours", ReadSwap},
    {"fill", "KIND", "solid horizontal vertical radial", ReadFill},
    {"line-width", "N", "the width of lines and outlines (1 to 255)", ReadLineWidth},
    {"brush-size", "N", "the size of the brush eraser (1 to 100)", ReadBrushSize},
    {"brush-opacity", "N", "the strength of the brush eraser (1 to 100)", ReadBrushOpacity},
    {"tool", "NAME",
     "move pencil line rectangle ellipse filled-rectangle filled-ellipse pick pencil-eraser "
     "brush-eraser select-rectangle select-ellipse select-polygon",
     ReadTool},
};

}  // namespace

std::span<const Verb> ToolVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
