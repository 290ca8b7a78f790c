// Which commands, buttons and sliders are enabled and which are pressed: worked out from the state
// of the editor after every command, in this one place.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "document/undo_history.h"
#include "editing/editor_state.h"

namespace orbelle::editing {

// What a menu entry, a button or a shortcut stands for and can be disabled. All of a command's
// entries, buttons and shortcuts have the one state.
enum class CommandId {
    Save,
    SaveAs,
    Export,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Delete,
    SelectAll,
    Deselect,
    InvertSelection,
    MergeDown,
    FlipHorizontal,
    FlipVertical,
    Rotate90Cw,
    Rotate90Cww,
    BackOne,
    ForwardOne,
    ToBack,
    ToFront,
    SetOrder,
    AddLayer,
    RemoveLayer,
    HideLayer,
    DisabledState,
    HotState,
    Fresh,
    Ios,
    Origami,
    Mac,
    Vista,
    Crystal,
    Blur,
    Sharpen,
    Irradiation,
    Shade,
    Reflection,
    DropShadow,
    ChooseTool,
    Mirror,
    ZoomIn,
    ZoomOut,
    OriginalSize,
    FitWhole,
    PageBackground,
    Count,
};

struct ButtonState {
    bool Enabled = false;
    bool Pressed = false;
    bool operator==(const ButtonState&) const = default;
};

// By button number (buttons.h); index 0 and those of separators are unused.
struct ControlStates {
    std::array<bool, static_cast<std::size_t>(CommandId::Count)> Commands{};

    std::array<ButtonState, 14> MainBar;
    std::array<ButtonState, 13> ToolBox;
    std::array<ButtonState, 5> FillBar;
    std::array<ButtonState, 7> LayerBar;
    std::array<ButtonState, 4> SelectionBar;
    std::array<ButtonState, 3> EraserBar;

    // The steps that Undo and Redo would take (UndoHistory::UndoName); empty: none.
    std::string_view UndoName;
    std::string_view RedoName;

    bool IsEnabled(CommandId command) const { return Commands[static_cast<std::size_t>(command)]; }
    bool operator==(const ControlStates&) const = default;
};

ControlStates StatesOf(const EditorState& editor, const document::UndoHistory& history,
                       bool clipboardHasPicture);

// The same for the sliders: sets Slider::Enabled.
void EnableSliders(EditorState& editor);

}  // namespace orbelle::editing
