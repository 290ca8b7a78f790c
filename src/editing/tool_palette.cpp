#include "editing/tool_palette.h"

#include "editing/buttons.h"
#include "editing/color_wells.h"
#include "editing/tips.h"

namespace orbelle::editing {
namespace {

// The tool that a button of the tool box chooses now.
Tool ToolOfButton(const ToolSettings& tools, int button) {
    switch (button) {
        case tool_buttons::Selection:
            return tools.SelectionKind;
        case tool_buttons::Eraser:
            return tools.EraserKind;
        default:
            break;
    }
    for (const Tool tool : {Tool::Pencil, Tool::Line, Tool::Rectangle, Tool::Ellipse,
                            Tool::FilledRectangle, Tool::FilledEllipse, Tool::ColorPick}) {
        if (ButtonOf(tool) == button)
            return tool;
    }
    return Tool::Move;
}

Popup PopupOf(Tool tool) {
    if (IsSelectionTool(tool))
        return Popup::SelectionBar;
    if (IsEraser(tool))
        return Popup::EraserBar;
    const bool isShape = tool >= Tool::Line && tool <= Tool::FilledEllipse;
    return isShape ? Popup::FillBar : Popup::None;
}

void ShowSelectionFrame(Editor& editor) {
    OverlayShape& frame = editor.Overlays.SelectionFrame;
    frame.IsOval = editor.Tools.InUse == Tool::SelectEllipse;
    frame.Visible = editor.Tools.InUse != Tool::SelectPolygon && editor.Page().LayerCount() >= 1;
    frame.Rect = {};
}

// A polygon that was not closed lies between two tools.
void UseTool(Editor& editor, Tool tool) {
    editor.PolygonPoints.clear();
    editor.Overlays.RubberBand.Visible = false;
    editor.Tools.InUse = tool;
    editor.Overlays.PointerMark.IsOval = tool == Tool::BrushEraser;
    if (tool == Tool::Move)
        editor.Overlays.PointerMark.Visible = false;
    if (!IsSelectionTool(tool))
        editor.Overlays.SelectionFrame.Visible = false;
    editor.Changed.Scene |= editor.Page().LayerCount() > 0;
}

void UseSelectionTool(Editor& editor) {
    if (!editor.Selection.Exists())
        editor.Selection.Start();
    ShowSelectionFrame(editor);
}

void ChooseTool(Editor& editor, Tool tool) {
    UseTool(editor, tool);
    if (IsSelectionTool(tool))
        UseSelectionTool(editor);
    else if (tool != Tool::Move)
        editor.Selection.Clear();
    if (IsEraser(tool))
        editor.Sliders.ColorOpacity.Value = 0;
    if (tool != Tool::PencilEraser)
        ShowColorOpacity(editor);
    if (tool == Tool::Move)
        editor.Changed.Tip = {tips::MoveTool};
    else if (tool != Tool::ColorPick)
        editor.Changed.Tip = {tips::OtherTool};
}

}  // namespace

void ClickToolButton(Editor& editor, int button) {
    const int inUse = ButtonOf(editor.Tools.InUse);
    const Popup open = editor.Tools.OpenPopup;
    ChooseToolByKey(editor, button);
    if (ButtonOf(editor.Tools.InUse) != button)
        return;
    // A pop-up opens with its button and closes with the next click on it.
    const Popup popup = PopupOf(editor.Tools.InUse);
    const bool closes = button == inUse && open == popup;
    editor.Tools.OpenPopup = closes ? Popup::None : popup;
}

void ChooseToolByKey(Editor& editor, int button) {
    if (!editor.States.ToolBox[static_cast<std::size_t>(button)].Enabled)
        return;
    ChooseTool(editor, ToolOfButton(editor.Tools, button));
    editor.Tools.OpenPopup = Popup::None;
}

void CloseToolPopup(Editor& editor) {
    editor.Tools.OpenPopup = Popup::None;
}

void ChooseFill(Editor& editor, FillKind kind) {
    editor.Tools.FillKind = kind;
    editor.Tools.OpenPopup = Popup::None;
}

void ChooseSelection(Editor& editor, Tool tool) {
    editor.Tools.SelectionKind = tool;
    editor.Tools.OpenPopup = Popup::None;
    UseTool(editor, tool);
    UseSelectionTool(editor);
}

void ChooseEraser(Editor& editor, Tool tool) {
    editor.Tools.EraserKind = tool;
    editor.Tools.OpenPopup = Popup::None;
    UseTool(editor, tool);
    editor.Changed.Tip = {tips::OtherTool};
}

void ChooseToolEntry(Editor& editor, Tool tool) {
    if (!editor.States.ToolBox[static_cast<std::size_t>(ButtonOf(tool))].Enabled)
        return;
    UseTool(editor, tool);
    ShowColorOpacity(editor);
    editor.Tools.OpenPopup = Popup::None;
}

void SetMirror(Editor& editor, MirrorAxes axes) {
    editor.Tools.Mirror = axes;
    editor.Changed.Scene = true;  // over which the axes are shown
}

void ToggleMirrorLeftRight(Editor& editor) {
    const MirrorAxes axes = editor.Tools.Mirror;
    SetMirror(editor, {!axes.LeftRight, axes.TopBottom});
}

void ToggleMirrorTopBottom(Editor& editor) {
    const MirrorAxes axes = editor.Tools.Mirror;
    SetMirror(editor, {axes.LeftRight, !axes.TopBottom});
}

void ChangeLineWidth(Editor& editor, int value) {
    editor.Sliders.LineWidth.Value = editor.Sliders.LineWidth.Clamped(value);
}

void ChangeBrushSize(Editor& editor, int value) {
    editor.Sliders.BrushSize.Value = editor.Sliders.BrushSize.Clamped(value);
}

void ChangeBrushOpacity(Editor& editor, int value) {
    editor.Sliders.BrushOpacity.Value = editor.Sliders.BrushOpacity.Clamped(value);
}

}  // namespace orbelle::editing
