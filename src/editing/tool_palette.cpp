#include "editing/tool_palette.h"

#include <algorithm>
#include <string>

#include "editing/color_wells.h"
#include "editing/drag.h"
#include "editing/scene_input.h"
#include "editing/tips.h"
#include "editing/tools/polygon.h"
#include "editing/view_commands.h"

namespace orbelle::editing {
namespace {

enum class Selection { Keep, Begin, End };

struct ToolChoice {
    int Button;
    Tool Chosen;  // for buttons 2 and 12 the pop-up's choice counts
    bool HasLineWidth;
    bool HasColorOpacity;
    Selection Selected;
};

constexpr ToolChoice kChoices[] = {
    {tool_buttons::Move, Tool::Move, false, false, Selection::Keep},
    {tool_buttons::Selection, Tool::SelectRectangle, false, false, Selection::Begin},
    {tool_buttons::Pencil, Tool::Pencil, false, true, Selection::End},
    {tool_buttons::Line, Tool::Line, true, true, Selection::End},
    {tool_buttons::Ellipse, Tool::Ellipse, true, true, Selection::End},
    {tool_buttons::FilledEllipse, Tool::FilledEllipse, false, true, Selection::End},
    {tool_buttons::Rectangle, Tool::Rectangle, true, true, Selection::End},
    {tool_buttons::FilledRectangle, Tool::FilledRectangle, false, true, Selection::End},
    {tool_buttons::ColorPick, Tool::ColorPick, false, true, Selection::End},
    {tool_buttons::Eraser, Tool::PencilEraser, false, false, Selection::End},
};

template <std::size_t kCount>
void PressOnly(std::array<Button, kCount>& buttons, int pressed) {
    for (Button& button : buttons)
        button.Pressed = false;
    buttons[static_cast<std::size_t>(pressed)].Pressed = true;
}

template <std::size_t kCount>
int PressedButton(const std::array<Button, kCount>& buttons) {
    int pressed = 1;
    for (std::size_t i = 1; i < kCount; ++i) {
        if (buttons[i].Pressed)
            pressed = static_cast<int>(i);
    }
    return pressed;
}

Tool SelectionTool(int button) {
    return static_cast<Tool>(static_cast<int>(Tool::SelectRectangle) + button - 1);
}

void BeginSelection(Editor& editor) {
    if (!editor.Selection.Exists())
        editor.Selection.Start();
}

void ShowSelectionFrame(Editor& editor) {
    OverlayShape& frame = editor.Overlays.SelectionFrame;
    frame.IsOval = editor.CurrentTool == Tool::SelectEllipse;
    frame.Visible = editor.CurrentTool != Tool::SelectPolygon && editor.Document.LayerCount() >= 1;
    frame.Rect = {};
}

// The brush has a panel of its own, the pencil eraser none.
void UseEraser(Editor& editor, int button) {
    const bool isBrush = button == eraser_buttons::Brush;
    editor.CurrentTool = isBrush ? Tool::BrushEraser : Tool::PencilEraser;
    editor.Controls.BrushPanelOpen = isBrush;
}

// A pop-up opens with its button and closes with the next click on it.
bool TogglePopup(bool visible, bool clickedAgain) {
    return !clickedAgain || !visible;
}

void ShowPopups(Editor& editor, int button) {
    Controls& controls = editor.Controls;
    const bool again = button == editor.LastToolButton;
    const bool hasFill = button >= tool_buttons::Line && button <= tool_buttons::FilledRectangle;
    controls.FillBarVisible = hasFill && TogglePopup(controls.FillBarVisible, again);
    controls.SelectionBarVisible =
        button == tool_buttons::Selection && TogglePopup(controls.SelectionBarVisible, again);
    controls.EraserBarVisible =
        button == tool_buttons::Eraser && TogglePopup(controls.EraserBarVisible, again);
}

// What lies between two tools: a drag, and a polygon that was not closed.
void LeaveTool(Editor& editor) {
    AbandonDrag(editor);
    DropPolygon(editor);
}

void ShowToolChanged(Editor& editor) {
    editor.Overlays.PointerMark.IsOval = editor.CurrentTool == Tool::BrushEraser;
    if (editor.Document.LayerCount() > 0)
        DrawScene(editor);
    editor.Host.ControlsChanged();
    editor.Host.OverlaysChanged();
}

void ApplyChoice(Editor& editor, const ToolChoice& choice) {
    Controls& controls = editor.Controls;
    controls.LineWidth.Enabled = choice.HasLineWidth;
    controls.ColorOpacity.Enabled = choice.HasColorOpacity;
    controls.BrushPanelOpen = false;
    editor.CurrentTool = choice.Chosen;
    switch (choice.Selected) {
        case Selection::Keep:
            break;
        case Selection::Begin:
            BeginSelection(editor);
            break;
        case Selection::End:
            editor.Selection.Clear();
            break;
    }
    if (choice.Button == tool_buttons::Move) {
        editor.Overlays.SelectionFrame.Visible = false;
        editor.Overlays.PointerMark.Visible = false;
    } else if (choice.Button == tool_buttons::Selection) {
        editor.CurrentTool = SelectionTool(PressedButton(controls.SelectionBar));
        ShowSelectionFrame(editor);
    } else if (choice.Button == tool_buttons::Eraser) {
        UseEraser(editor, PressedButton(controls.EraserBar));
        controls.ColorOpacity.Value = 0;
        if (editor.CurrentTool == Tool::BrushEraser)
            editor.TipCounter = kTipsExpired;
    }
}

}  // namespace

void ClickToolButton(Editor& editor, int button) {
    const auto* choice = std::find_if(std::begin(kChoices), std::end(kChoices),
                                      [=](const ToolChoice& c) { return c.Button == button; });
    Controls& controls = editor.Controls;
    if (choice == std::end(kChoices) || !controls.ToolBox[static_cast<std::size_t>(button)].Enabled)
        return;
    LeaveTool(editor);
    PressOnly(controls.ToolBox, button);
    ApplyChoice(editor, *choice);
    if (choice->Chosen == Tool::Move)
        editor.Host.ShowTips(tips::MoveTool);
    else if (choice->Chosen != Tool::ColorPick)
        editor.Host.ShowTips(tips::OtherTool);
    ShowPopups(editor, button);
    if (editor.CurrentTool != Tool::PencilEraser)
        ShowColorOpacity(editor);
    ShowToolChanged(editor);
    if (editor.LastToolButton == tool_buttons::Eraser || button == tool_buttons::Eraser)
        editor.Host.SlideBrushPanel();
    editor.LastToolButton = button;
}

void ChooseFill(Editor& editor, FillKind kind) {
    PressOnly(editor.Controls.FillBar, static_cast<int>(kind) + 1);
    editor.Controls.FillBarVisible = false;
    editor.FillKind = kind;
    editor.Host.ControlsChanged();
}

void ChooseSelection(Editor& editor, int button) {
    LeaveTool(editor);
    PressOnly(editor.Controls.SelectionBar, button);
    editor.Controls.SelectionBarVisible = false;
    editor.CurrentTool = SelectionTool(button);
    ShowSelectionFrame(editor);
    BeginSelection(editor);
    ShowToolChanged(editor);
}

void ChooseEraser(Editor& editor, int button) {
    LeaveTool(editor);
    PressOnly(editor.Controls.EraserBar, button);
    editor.Controls.EraserBarVisible = false;
    UseEraser(editor, button);
    editor.Host.ShowTips(tips::OtherTool);
    ShowToolChanged(editor);
    editor.Host.SlideBrushPanel();
}

void ChooseToolEntry(Editor& editor, Tool tool) {
    LeaveTool(editor);
    Controls& controls = editor.Controls;
    const struct {
        MenuEntry& Entry;
        Tool Chosen;
    } entries[] = {{controls.m_Selection, Tool::Move},
                   {controls.m_Pencil, Tool::Pencil},
                   {controls.m_Line, Tool::Line},
                   {controls.m_Ellipse, Tool::Ellipse},
                   {controls.m_Rectangle, Tool::Rectangle}};
    for (const auto& entry : entries)
        entry.Entry.Checked = entry.Chosen == tool;
    controls.LineWidth.Enabled = tool != Tool::Move && tool != Tool::Pencil;
    controls.ColorOpacity.Enabled = tool != Tool::Move;
    editor.CurrentTool = tool;
    ShowToolChanged(editor);
}

void ChangeLineWidth(Editor& editor, int value) {
    editor.Controls.LineWidth.Value = value;
    editor.Host.ControlsChanged();
}

void ChangeBrushSize(Editor& editor, int value) {
    editor.Controls.BrushSize.Value = value;
    editor.Controls.BrushSizeText = std::to_string(value);
    editor.Host.ControlsChanged();
}

void ChangeBrushOpacity(Editor& editor, int value) {
    editor.Controls.BrushOpacity.Value = value;
    editor.Controls.BrushOpacityText = std::to_string(value) + "%";
    editor.Host.ControlsChanged();
}

}  // namespace orbelle::editing
