// The Edit menu on the layer stack and the clipboard, and Hide Layer.
#include "cli/verb_table.h"
#include "editing/clipboard_commands.h"
#include "editing/layer_bar.h"
#include "editing/selection_commands.h"
#include "editing/stack_commands.h"

namespace orbelle::cli {
namespace {

using editing::CommandId;
using editing::Editor;
using editing::FlipRotate;
using editing::LayerOrder;

bool IsEnabled(const Workspace& workspace, CommandId command) {
    return workspace.Editor.States.IsEnabled(command);
}

void RequireVisibleLayer(const Workspace& workspace) {
    RequireSelectedLayer(workspace);
    if (!workspace.Editor.Page().Selected().Visible)
        throw Failure("the selected layer is hidden");
}

// For the commands that wait for a visible layer that clips no other. Only those of the order may
// be disabled besides.
void RequireEnabled(const Workspace& workspace, CommandId command) {
    if (IsEnabled(workspace, command))
        return;
    RequireVisibleLayer(workspace);
    throw Failure(workspace.Editor.Page().Selected().ClipNextLayer
                      ? "the selected layer clips the one above it"
                      : "the selected layer is there already");
}

template <CommandId kId, void (*kCommand)(Editor&)>
void RunEnabled(Workspace& workspace) {
    RequireEnabled(workspace, kId);
    workspace.Run(kCommand);
}

void ToggleVisible(Workspace& workspace) {
    RequireSelectedLayer(workspace);
    workspace.Run(editing::PressHideLayer);
}

void Merge(Workspace& workspace) {
    if (!IsEnabled(workspace, CommandId::MergeDown)) {
        RequireVisibleLayer(workspace);
        throw Failure("there is no layer below the selected one");
    }
    workspace.Run(editing::MergeDown);
}

void SelectAll(Workspace& workspace) {
    RequireDocument(workspace);
    workspace.Run(editing::SelectAll);
}

template <CommandId kId, void (*kCommand)(Editor&)>
void RunOnSelection(Workspace& workspace) {
    RequireDocument(workspace);
    if (!IsEnabled(workspace, kId))
        throw Failure("nothing is selected");
    workspace.Run(kCommand);
}

void Paste(Workspace& workspace) {
    if (!IsEnabled(workspace, CommandId::Paste)) {
        RequireDocument(workspace);
        throw Failure("the clipboard holds no picture");
    }
    workspace.Run(editing::PasteFromClipboard);
}

Action ReadOrder(Words& words) {
    static constexpr struct {
        std::string_view Name;
        CommandId Command;
        LayerOrder Order;
    } kOrders[] = {{"front", CommandId::ToFront, LayerOrder::ToFront},
                   {"back", CommandId::ToBack, LayerOrder::ToBack},
                   {"forward", CommandId::ForwardOne, LayerOrder::ForwardOne},
                   {"backward", CommandId::BackOne, LayerOrder::BackOne}};
    return [&order = words.Entry("ORDER", kOrders)](Workspace& workspace) {
        RequireEnabled(workspace, order.Command);
        workspace.Run([&](Editor& editor) { SetLayerOrder(editor, order.Order); });
    };
}

template <FlipRotate kMode>
void FlipRotateSelected(Editor& editor) {
    editing::FlipRotateLayer(editor, kMode);
}

Action ReadFlip(Words& words) {
    static constexpr std::string_view kNames[] = {"horizontal", "vertical"};
    return words.Choice("DIRECTION", kNames) == 0
               ? RunEnabled<CommandId::FlipHorizontal,
                            FlipRotateSelected<FlipRotate::FlipHorizontal>>
               : RunEnabled<CommandId::FlipVertical, FlipRotateSelected<FlipRotate::FlipVertical>>;
}

Action ReadRotate(Words& words) {
    static constexpr std::string_view kNames[] = {"cw", "cww"};
    return words.Choice("DIRECTION", kNames) == 0
               ? RunEnabled<CommandId::Rotate90Cw, FlipRotateSelected<FlipRotate::Rotate90Cw>>
               : RunEnabled<CommandId::Rotate90Cww, FlipRotateSelected<FlipRotate::Rotate90Cww>>;
}

constexpr Verb kVerbs[] = {
    {"delete", "", "the selection if there is one, else the selected layer",
     ReadNothing<RunEnabled<CommandId::Delete, editing::DeleteSelected>>,
     "open leaf.volf select 1 delete save leaf.volf"},
    {"toggle-visible", "", "hide or show the selected layer", ReadNothing<ToggleVisible>,
     "open leaf.volf select 0 toggle-visible export top.png"},
    {"merge", "", "the selected layer and the one below it become one", ReadNothing<Merge>,
     "open leaf.volf select 1 merge save leaf.volf"},
    {"order", "front|back|forward|backward", "move the selected layer in the stack", ReadOrder,
     "open leaf.volf select 0 order front save leaf.volf", "front back forward backward"},
    {"flip", "horizontal|vertical", "mirror the selected layer's picture", ReadFlip,
     "open arrow.png flip horizontal export left.png", "horizontal vertical"},
    {"rotate", "cw|cww", "turn the selected layer's picture; cww mirrors it too", ReadRotate,
     "open arrow.png rotate cw export down.png", "cw cww"},
    {"cut", "", "the selection or the selected layer to the clipboard, and delete it",
     ReadNothing<RunEnabled<CommandId::Cut, editing::CutToClipboard>>,
     "open leaf.volf select 1 cut save rest.volf"},
    {"copy", "", "the selection or the selected layer to the clipboard",
     ReadNothing<RunEnabled<CommandId::Copy, editing::CopyToClipboard>>,
     "open leaf.png copy paste flip vertical save mirrored.volf"},
    {"paste", "", "what was cut or copied as a new layer", ReadNothing<Paste>,
     "open leaf.png copy open page.volf paste save page.volf"},
    {"select-all", "", "select the whole page", ReadNothing<SelectAll>,
     "open leaf.png select-all copy paste save twice.volf"},
    {"deselect", "", "end the selection",
     ReadNothing<RunOnSelection<CommandId::Deselect, editing::EndSelection>>,
     "open leaf.png select-all deselect style blur save leaf.volf"},
    {"invert-selection", "", "select what is not selected of the page",
     ReadNothing<RunOnSelection<CommandId::InvertSelection, editing::InvertSelection>>,
     "open leaf.png tool select-ellipse drag 4 4 60 60 invert-selection delete save round.volf"},
};

}  // namespace

std::span<const Verb> StackVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
