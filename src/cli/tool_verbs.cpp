// The tools, what they draw with, and the colours in use.
#include "cli/verb_table.h"
#include "editing/buttons.h"
#include "editing/color_wells.h"
#include "editing/tool_palette.h"

namespace orbelle::cli {
namespace {

using editing::Editor;
using editing::Sliders;
using editing::Tool;

constexpr std::string_view kWells[] = {"foreground", "background"};
constexpr std::string_view kFills[] = {"solid", "horizontal", "vertical", "radial"};

struct MirrorName {
    std::string_view Name;
    editing::MirrorAxes Axes;
};

constexpr MirrorName kMirrors[] = {
    {"none", {}},
    {"horizontal", {true, false}},
    {"vertical", {false, true}},
    {"both", {true, true}},
};

struct ToolName {
    std::string_view Name;
    Tool Chosen;
};

constexpr ToolName kTools[] = {
    {"move", Tool::Move},
    {"pencil", Tool::Pencil},
    {"line", Tool::Line},
    {"rectangle", Tool::Rectangle},
    {"ellipse", Tool::Ellipse},
    {"filled-rectangle", Tool::FilledRectangle},
    {"filled-ellipse", Tool::FilledEllipse},
    {"pick", Tool::ColorPick},
    {"pencil-eraser", Tool::PencilEraser},
    {"brush-eraser", Tool::BrushEraser},
    {"select-rectangle", Tool::SelectRectangle},
    {"select-ellipse", Tool::SelectEllipse},
    {"select-polygon", Tool::SelectPolygon},
};

template <int kWell>
Action ReadWellColor(Words& words) {
    return [color = words.Color("COLOUR")](Workspace& workspace) {
        workspace.Run([=](Editor& editor) { SetWellColor(editor, kWell, color); });
    };
}

Action ReadActive(Words& words) {
    return [well = static_cast<int>(words.Choice("WELL", kWells))](Workspace& workspace) {
        workspace.Run([=](Editor& editor) { UseColorWell(editor, well); });
    };
}

void Swap(Workspace& workspace) {
    workspace.Run(editing::ExchangeColor);
}

Action ReadFill(Words& words) {
    const auto kind = static_cast<editing::FillKind>(words.Choice("KIND", kFills));
    return [=](Workspace& workspace) {
        workspace.Run([=](Editor& editor) { ChooseFill(editor, kind); });
    };
}

// A number within the range of a slider.
Action ReadSlider(Words& words, editing::Slider Sliders::*slider,
                  void (*change)(Editor&, int value)) {
    const editing::Slider range = Sliders().*slider;
    return [=, value = words.Integer("N", range.Minimum, range.Maximum)](Workspace& workspace) {
        if (!(workspace.Editor.Sliders.*slider).Enabled)
            throw Failure("the tool in use has no line width");
        workspace.Run([=](Editor& editor) { change(editor, value); });
    };
}

Action ReadLineWidth(Words& words) {
    return ReadSlider(words, &Sliders::LineWidth, editing::ChangeLineWidth);
}

Action ReadBrushSize(Words& words) {
    return ReadSlider(words, &Sliders::BrushSize, editing::ChangeBrushSize);
}

Action ReadBrushOpacity(Words& words) {
    return ReadSlider(words, &Sliders::BrushOpacity, editing::ChangeBrushOpacity);
}

// A click in the tool box, and one in the pop-up that it opens.
void ChooseTool(Editor& editor, Tool tool) {
    ClickToolButton(editor, editing::ButtonOf(tool));
    if (editing::IsSelectionTool(tool))
        ChooseSelection(editor, tool);
    else if (editing::IsEraser(tool))
        ChooseEraser(editor, tool);
}

Action ReadTool(Words& words) {
    return [tool = words.Entry("NAME", kTools).Chosen](Workspace& workspace) {
        if (tool != Tool::Move &&
            !workspace.Editor.States.IsEnabled(editing::CommandId::ChooseTool))
            throw Failure("there is no document");
        workspace.Run([=](Editor& editor) { ChooseTool(editor, tool); });
    };
}

Action ReadMirror(Words& words) {
    return [axes = words.Entry("AXES", kMirrors).Axes](Workspace& workspace) {
        workspace.Run([=](Editor& editor) { SetMirror(editor, axes); });
    };
}

constexpr Verb kVerbs[] = {
    {"foreground", "COLOUR", "the foreground colour: #RRGGBB or #AARRGGBB", ReadWellColor<0>,
     "new 64 64 foreground '#D03030' tool filled-ellipse drag 6 6 58 58 export disc.ico"},
    {"background-colour", "COLOUR", "the background colour", ReadWellColor<1>,
     "new 64 64 background-colour '#80204060' active background tool line drag 0 0 63 63 export "
     "line.png"},
    {"active", "foreground|background", "the colour in use", ReadActive,
     "new 64 64 active background tool pencil drag 4 4 60 60 export line.png",
     "foreground background"},
    {"swap", "", "exchange the two colours", ReadNothing<Swap>,
     "new 64 64 swap tool pencil drag 4 4 60 60 export line.png"},
    {"fill", "KIND", "solid horizontal vertical radial", ReadFill,
     "new 64 64 fill radial tool filled-ellipse drag 6 6 58 58 export ball.png",
     "solid horizontal vertical radial"},
    {"line-width", "N", "the width of lines and outlines (1 to 255)", ReadLineWidth,
     "new 64 64 tool ellipse line-width 6 drag 6 6 58 58 export ring.png"},
    {"brush-size", "N", "the size of the brush eraser (1 to 100)", ReadBrushSize,
     "open leaf.png tool brush-eraser brush-size 20 drag 0 0 63 63 save leaf.volf"},
    {"brush-opacity", "N", "the strength of the brush eraser (1 to 100)", ReadBrushOpacity,
     "open leaf.png tool brush-eraser brush-opacity 50 click 8 8 save leaf.volf"},
    {"tool", "NAME",
     "move pencil line rectangle ellipse filled-rectangle filled-ellipse pick pencil-eraser "
     "brush-eraser select-rectangle select-ellipse select-polygon",
     ReadTool, "new 64 64 tool filled-rectangle drag 8 8 56 56 export box.png",
     "move pencil line rectangle ellipse filled-rectangle filled-ellipse pick pencil-eraser "
     "brush-eraser select-rectangle select-ellipse select-polygon"},
    {"mirror", "AXES", "none horizontal vertical both: drawing is mirrored over the page's middle",
     ReadMirror, "new 64 64 mirror horizontal tool pencil drag 8 8 24 56 export face.png",
     "none horizontal vertical both"},
};

}  // namespace

std::span<const Verb> ToolVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
