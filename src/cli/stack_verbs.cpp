// The Edit menu on the layer stack and the clipboard, and Hide Layer.
#include "cli/verb_table.h"
#include "editing/clipboard_commands.h"
#include "editing/menu_state.h"
#include "editing/stack_commands.h"

namespace orbelle::cli {
namespace {

using editing::Controls;
using editing::Editor;
using editing::FlipRotate;
using editing::LayerOrder;

using Entry = editing::MenuEntry Controls::*;

bool IsEnabled(Workspace& workspace, Entry entry) {
    editing::OpenEditMenu(workspace.Editor);
    return (workspace.Editor.Controls.*entry).Enabled;
}

void RequireVisibleLayer(const Workspace& workspace) {
    RequireSelectedLayer(workspace);
    if (!workspace.Editor.Document.Selected().Visible)
        throw Failure("the selected layer is hidden");
}

// For the entries that wait for a visible layer that clips no other. Only those of the order may be
// disabled besides.
void RequireEntry(Workspace& workspace, Entry entry) {
    if (IsEnabled(workspace, entry))
        return;
    RequireVisibleLayer(workspace);
    throw Failure(workspace.Editor.Document.Selected().ClipNextLayer
                      ? "the selected layer clips the one above it"
                      : "the selected layer is there already");
}

template <Entry kEntry, void (*kCommand)(Editor&)>
void RunEntry(Workspace& workspace) {
    RequireEntry(workspace, kEntry);
    kCommand(workspace.Editor);
}

void ToggleVisible(Workspace& workspace) {
    if (!workspace.Editor.Controls.LayerBar[editing::layer_buttons::Hide].Enabled) {
        RequireDocument(workspace);
        throw Failure("no layer is selected");
    }
    editing::HideLayerCommand(workspace.Editor);
}

void Merge(Workspace& workspace) {
    if (!IsEnabled(workspace, &Controls::menu_Merge)) {
        RequireVisibleLayer(workspace);
        throw Failure(workspace.Editor.Document.SelectedLayer == 0
                          ? "there is no layer below the selected one"
                          : "the layer below the selected one is hidden");
    }
    editing::CombineIcon(workspace.Editor);
}

void Paste(Workspace& workspace) {
    if (!IsEnabled(workspace, &Controls::m_Paste)) {
        RequireDocument(workspace);
        throw Failure("the clipboard holds no picture");
    }
    editing::PasteFromClipboard(workspace.Editor);
}

Action ReadOrder(Words& words) {
    static constexpr struct {
        std::string_view Name;
        Entry State;
        LayerOrder Order;
    } kOrders[] = {{"front", &Controls::m_ToFront, LayerOrder::ToFront},
                   {"back", &Controls::m_ToBack, LayerOrder::ToBack},
                   {"forward", &Controls::m_FowardOne, LayerOrder::FowardOne},
                   {"backward", &Controls::m_BackOne, LayerOrder::BackOne}};
    return [&order = words.Entry("ORDER", kOrders)](Workspace& workspace) {
        RequireEntry(workspace, order.State);
        editing::SetLayerOrder(workspace.Editor, order.Order);
    };
}

template <FlipRotate kMode>
void FlipRotateSelected(Editor& editor) {
    editing::FlipRotateLayer(editor, kMode);
}

Action ReadFlip(Words& words) {
    static constexpr std::string_view kNames[] = {"horizontal", "vertical"};
    return words.Choice("DIRECTION", kNames) == 0
               ? RunEntry<&Controls::menu_FlipH, FlipRotateSelected<FlipRotate::FlipH>>
               : RunEntry<&Controls::menu_FlipV, FlipRotateSelected<FlipRotate::FlipV>>;
}

Action ReadRotate(Words& words) {
    static constexpr std::string_view kNames[] = {"cw", "cww"};
    return words.Choice("DIRECTION", kNames) == 0
               ? RunEntry<&Controls::m_90CW, FlipRotateSelected<FlipRotate::Rotate90CW>>
               : RunEntry<&Controls::m_90CWW, FlipRotateSelected<FlipRotate::Rotate90CWW>>;
}

constexpr Verb kVerbs[] = {
    {"delete", "", "the selection if there is one, else the selected layer",
     ReadNothing<RunEntry<&Controls::m_Del, editing::DeleteCommand>>},
    {"toggle-visible", "", "hide or show the selected layer", ReadNothing<ToggleVisible>},
    {"merge", "", "the selected layer and the one below it become one", ReadNothing<Merge>},
    {"order", "front|back|forward|backward", "move the selected layer in the stack", ReadOrder},
    {"flip", "horizontal|vertical", "mirror the selected layer's picture", ReadFlip},
    {"rotate", "cw|cww", "turn the selected layer's picture; cww mirrors it too", ReadRotate},
    {"cut", "", "the selection or the selected layer to the clipboard, and delete it",
     ReadNothing<RunEntry<&Controls::m_Cut, editing::CutToClipboard>>},
    {"copy", "", "the selection or the selected layer to the clipboard",
     ReadNothing<RunEntry<&Controls::m_Copy, editing::CopyToClipboard>>},
    {"paste", "", "what was cut or copied as a new layer", ReadNothing<Paste>},
};

}  // namespace

std::span<const Verb> StackVerbs() {
    return kVerbs;
}

}  // namespace orbelle::cli
