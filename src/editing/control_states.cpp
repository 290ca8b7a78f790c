#include "editing/control_states.h"

#include <initializer_list>

#include "editing/buttons.h"

namespace orbelle::editing {
namespace {

// Fills the table of states, topic by topic.
class StateTable {
public:
    StateTable(const EditorState& editor, const document::UndoHistory& history,
               bool clipboardHasPicture)
        : editor_(editor), history_(history) {
        EnableFileCommands();
        EnableEditCommands(clipboardHasPicture);
        EnableStyles();
        EnableViewCommands();
        FillBars();
    }

    const ControlStates& States() const { return states_; }

private:
    const document::Page& Page() const { return editor_.Page(); }
    bool Selected() const { return Page().HasSelection(); }
    bool Visible() const { return Selected() && Page().Selected().Visible; }

    void Enable(std::initializer_list<CommandId> commands, bool enabled) {
        for (const CommandId command : commands)
            states_.Commands[static_cast<std::size_t>(command)] = enabled;
    }

    void EnableFileCommands() {
        Enable({CommandId::Save, CommandId::SaveAs, CommandId::Export}, Page().LayerCount() >= 1);
    }

    void EnableEditCommands(bool clipboardHasPicture) {
        const int index = Page().SelectedLayer, count = Page().LayerCount();
        Enable({CommandId::Undo}, history_.UndoIndex() >= 1);
        Enable({CommandId::Redo}, history_.RedoCount() >= 1);
        states_.UndoName = history_.UndoName();
        states_.RedoName = history_.RedoName();
        // A plate that clips the layer above it stays where it is.
        const bool usable = Visible() && !Page().Selected().ClipNextLayer;
        Enable({CommandId::Cut, CommandId::Copy, CommandId::Delete, CommandId::FlipHorizontal,
                CommandId::FlipVertical, CommandId::Rotate90Cw, CommandId::Rotate90Cww},
               usable);
        Enable({CommandId::ToBack, CommandId::BackOne}, usable && index >= 1);
        Enable({CommandId::ToFront, CommandId::ForwardOne}, usable && index < count - 1);
        Enable({CommandId::SelectAll}, editor_.DocumentExists);
        Enable({CommandId::Deselect, CommandId::InvertSelection}, editor_.Selection.Exists());
        Enable({CommandId::Paste}, editor_.DocumentExists && clipboardHasPicture);

        Enable({CommandId::AddLayer}, editor_.DocumentExists);
        Enable({CommandId::RemoveLayer, CommandId::HideLayer}, Selected());
        Enable({CommandId::SetOrder}, Visible() && count >= 2);
        Enable({CommandId::MergeDown}, Visible() && index >= 1);
    }

    void EnableStyles() {
        Enable({CommandId::DisabledState, CommandId::HotState}, Page().LayerCount() >= 1);
        Enable(
            {CommandId::Fresh, CommandId::Ios, CommandId::Origami, CommandId::Mac, CommandId::Vista,
             CommandId::Crystal, CommandId::Blur, CommandId::Sharpen, CommandId::Irradiation,
             CommandId::Shade, CommandId::Reflection, CommandId::DropShadow},
            Visible());
    }

    void EnableViewCommands() {
        const double zoom = editor_.Zoom.IsAnimated ? editor_.Zoom.Target : editor_.View.Zoom;
        Enable({CommandId::ChooseTool, CommandId::Mirror, CommandId::OriginalSize,
                CommandId::FitWhole, CommandId::PageBackground},
               editor_.DocumentExists);
        Enable({CommandId::NextSize}, editor_.Document.Neighbour(1).has_value());
        Enable({CommandId::PreviousSize}, editor_.Document.Neighbour(-1).has_value());
        Enable({CommandId::Master}, editor_.Document.EditedSize != document::Family::kMaster);
        Enable({CommandId::ZoomIn}, editor_.DocumentExists && zoom < editor_.Zoom.Maximum);
        Enable({CommandId::ZoomOut}, editor_.DocumentExists && zoom > editor_.Zoom.Minimum);
    }

    template <std::size_t kCount>
    void Set(std::array<ButtonState, kCount>& bar, int button, CommandId command,
             bool pressed = false) {
        bar[static_cast<std::size_t>(button)] = {states_.IsEnabled(command), pressed};
    }

    void FillBars() {
        for (const int button :
             {main_buttons::New, main_buttons::Open, main_buttons::Import, main_buttons::Website})
            states_.MainBar[static_cast<std::size_t>(button)].Enabled = true;
        Set(states_.MainBar, main_buttons::Save, CommandId::Save);
        Set(states_.MainBar, main_buttons::Undo, CommandId::Undo);
        Set(states_.MainBar, main_buttons::Redo, CommandId::Redo);
        Set(states_.MainBar, main_buttons::ZoomIn, CommandId::ZoomIn);
        Set(states_.MainBar, main_buttons::ZoomOut, CommandId::ZoomOut);
        Set(states_.MainBar, main_buttons::OriginalSize, CommandId::OriginalSize,
            editor_.Zoom.IsOriginalSize);

        Set(states_.LayerBar, layer_buttons::Add, CommandId::AddLayer);
        Set(states_.LayerBar, layer_buttons::Remove, CommandId::RemoveLayer);
        Set(states_.LayerBar, layer_buttons::Hide, CommandId::HideLayer, Visible());
        Set(states_.LayerBar, layer_buttons::SetOrder, CommandId::SetOrder);
        Set(states_.LayerBar, layer_buttons::MergeDown, CommandId::MergeDown);

        // The Move tool needs no document.
        const int inUse = ButtonOf(editor_.Tools.InUse);
        for (int button = 1; button < static_cast<int>(states_.ToolBox.size()); ++button)
            Set(states_.ToolBox, button, CommandId::ChooseTool, button == inUse);
        states_.ToolBox[tool_buttons::Move].Enabled = true;
        PressOne(states_.FillBar, static_cast<int>(editor_.Tools.FillKind) + 1);
        PressOne(states_.SelectionBar, PopupButtonOf(editor_.Tools.SelectionKind));
        PressOne(states_.EraserBar, PopupButtonOf(editor_.Tools.EraserKind));
    }

    template <std::size_t kCount>
    static void PressOne(std::array<ButtonState, kCount>& bar, int pressed) {
        for (int button = 1; button < static_cast<int>(kCount); ++button)
            bar[static_cast<std::size_t>(button)] = {true, button == pressed};
    }

    const EditorState& editor_;
    const document::UndoHistory& history_;
    ControlStates states_;
};

}  // namespace

ControlStates StatesOf(const EditorState& editor, const document::UndoHistory& history,
                       bool clipboardHasPicture) {
    return StateTable(editor, history, clipboardHasPicture).States();
}

void EnableSliders(EditorState& editor) {
    Sliders& sliders = editor.Sliders;
    for (Slider* slider : {&sliders.Opacity, &sliders.Hue, &sliders.Saturation, &sliders.Brightness,
                           &sliders.Contrast, &sliders.Scale})
        slider->Enabled = editor.Page().HasSelection();
    // The artwork of a size keeps its size.
    sliders.PageWidth.Enabled = sliders.PageHeight.Enabled =
        editor.DocumentExists && editor.Document.EditedSize == document::Family::kMaster;
    sliders.BrushOpacity.Enabled = sliders.BrushSize.Enabled = true;
    const Tool tool = editor.Tools.InUse;
    sliders.LineWidth.Enabled =
        tool == Tool::Line || tool == Tool::Rectangle || tool == Tool::Ellipse;
    sliders.ColorOpacity.Enabled = tool != Tool::Move && !IsSelectionTool(tool) && !IsEraser(tool);
}

}  // namespace orbelle::editing
