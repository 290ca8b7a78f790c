// Layers, their styles, undo and redo.
#include "cli/verb_table.h"
#include "editing/adjust_sliders.h"
#include "editing/layer_commands.h"
#include "editing/menu_state.h"
#include "editing/style_commands.h"
#include "editing/undo_commands.h"

namespace orbelle::cli {
namespace {

namespace main_buttons = editing::main_buttons;
namespace layer_buttons = editing::layer_buttons;

constexpr std::string_view kStyleNames[] = {"crystal"};

Action ReadSelect(Words& words) {
    return [layer = words.Integer("N", 0)](Workspace& workspace) {
        RequireLayer(workspace, layer);
        editing::SelectLayer(workspace.Editor, layer);
    };
}

Action ReadAddLayer(Words&) {
    return [](Workspace& workspace) {
        if (!workspace.Editor.Controls.ToolBarvs4[layer_buttons::Add].Enabled)
            throw Failure("there is no document");
        editing::AddLayerCommand(workspace.Editor);
    };
}

Action ReadOpacity(Words& words) {
    return [values = words.Integers("V", 0, 100)](Workspace& workspace) {
        if (!workspace.Editor.Controls.CtlScroll21.Enabled) {
            RequireSelectedLayer(workspace);
            throw Failure("the opacity slider is disabled");
        }
        editing::PressOpacity(workspace.Editor);
        for (const int value : values)
            editing::ChangeOpacity(workspace.Editor, value);
        editing::ReleaseOpacity(workspace.Editor);
    };
}

Action ReadStyle(Words& words) {
    words.Choice("NAME", kStyleNames);
    return [](Workspace& workspace) {
        editing::OpenStyleMenu(workspace.Editor);
        if (!workspace.Editor.Controls.m_Crystal.Enabled) {
            RequireSelectedLayer(workspace);
            throw Failure("the selected layer is hidden");
        }
        editing::Crystal(workspace.Editor);
    };
}

Action ReadUndo(Words&) {
    return [](Workspace& workspace) {
        if (!workspace.Editor.Controls.ToolBarvs1[main_buttons::Undo].Enabled)
            throw Failure("there is nothing to undo");
        editing::Undo(workspace.Editor);
    };
}

Action ReadRedo(Words&) {
    return [](Workspace& workspace) {
        if (!workspace.Editor.Controls.ToolBarvs1[main_buttons::Redo].Enabled)
            throw Failure("there is nothing to redo");
        editing::Redo(workspace.Editor);
    };
}

constexpr Verb kVerbs[] = {
    {"select", "N", "click on the row of layer N; 0 is the bottom", ReadSelect},
    {"add-layer", "", "an empty layer above the selected one", ReadAddLayer},
    {"opacity", "V...", "one drag of the opacity slider through each V (0 to 100)", ReadOpacity},
    {"style", "crystal", "apply that style to the selected layer", ReadStyle},
    {"undo", "", "take back one step", ReadUndo},
    {"redo", "", "do again what was taken back", ReadRedo},
};

}  // namespace

std::span<const Verb> LayerVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
