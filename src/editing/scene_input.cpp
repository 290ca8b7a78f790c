#include "editing/scene_input.h"

#include "editing/clipboard_commands.h"
#include "editing/scene_mapping.h"
#include "editing/tips.h"
#include "editing/tools/polygon.h"
#include "editing/undo_step.h"

namespace orbelle::editing {
namespace {

constexpr int kLeftButton = 1;

template <typename... Kinds>
bool HoldsOneOf(const Drag& drag) {
    return (std::holds_alternative<Kinds>(drag) || ...);
}

// On the scene. While a page size is being typed the pointer goes where it likes.
bool IsDragging(const Editor& editor) {
    return HoldsOneOf<MoveDrag, StrokeDrag, EraserDrag, FrameSelectionDrag, PolygonSelectionDrag>(
        editor.Drag);
}

void ShowMarker(Editor& editor, const Pointer& pointer) {
    const SceneMapping mapping = MappingOf(editor);
    const graphics::PointF page = ScreenToPage(mapping, pointer.X, pointer.Y);
    const bool isBrush = editor.Tools.InUse == Tool::BrushEraser;
    const double size = isBrush ? editor.Sliders.BrushSize.Value * mapping.Zoom : mapping.Zoom;
    const double reach = isBrush ? graphics::RoundToEven(size) / 2 : 0;
    editor.Overlays.PointerMark = {
        true,
        isBrush,
        {static_cast<float>(mapping.PageOffsetX + page.X * mapping.Zoom - reach),
         static_cast<float>(mapping.PageOffsetY + page.Y * mapping.Zoom - reach),
         static_cast<float>(size), static_cast<float>(size)},
    };
}

void FollowPointer(Editor& editor, const Pointer& pointer) {
    editor.LastPointer = {pointer.X, pointer.Y};
    Pointer position = pointer;
    if (IsDragging(editor))
        HandlersOf(editor.Tools.InUse).Move(editor, position);
    else if (editor.Tools.InUse == Tool::SelectPolygon)
        StretchRubberBand(editor, position);
    if (editor.Tools.InUse != Tool::Move)
        ShowMarker(editor, position);
}

void PressLeft(Editor& editor, const Pointer& pointer) {
    if (editor.Page().LayerCount() == 0)
        return;
    HandlersOf(editor.Tools.InUse).Press(editor, pointer);
    // A polygon's point comes in as with a move.
    if (editor.Tools.InUse == Tool::SelectPolygon)
        FollowPointer(editor, pointer);
    editor.Changed.ExpireTips = true;
}

void PressOther(Editor& editor, const Pointer& pointer) {
    if (editor.Tools.InUse == Tool::SelectPolygon)
        return ClosePolygon(editor);
    editor.Changed.LayerMenu = {pointer.X, pointer.Y};
    editor.Changed.ExpireTips = true;
}

void Nudge(Editor& editor, float dx, float dy) {
    BeginUndoStep(editor, steps::MoveLayer);
    document::IconLayer& layer = editor.Page().Selected();
    layer.Rect.X += dx;
    layer.Rect.Y += dy;
    layer.Region.Translate(dx, dy);
    editor.Changed.Pixels = true;
}

}  // namespace

void PressScene(Editor& editor, const Pointer& pointer) {
    if (editor.Tools.OpenPopup == Popup::FillBar)
        editor.Tools.OpenPopup = Popup::None;
    if (pointer.Button == kLeftButton)
        PressLeft(editor, pointer);
    else
        PressOther(editor, pointer);
}

void MoveScene(Editor& editor, const Pointer& pointer) {
    const bool stayed = graphics::PointF{pointer.X, pointer.Y} == editor.LastPointer;
    if (!stayed || editor.Tools.InUse == Tool::SelectPolygon)
        FollowPointer(editor, pointer);
}

void ReleaseScene(Editor& editor, const Pointer& pointer) {
    AfterRelease after = AfterRelease::Compose;
    if (IsDragging(editor)) {
        after = HandlersOf(editor.Tools.InUse).Release(editor, pointer);
        editor.Drag = {};
    }
    if (after == AfterRelease::Compose)
        editor.Changed.Pixels = true;
    if (after == AfterRelease::HideTips || !editor.Page().HasSelection())
        editor.Changed.HideTips = true;
}

void HoldShift(Editor& editor, bool isHeld) {
    if (!std::holds_alternative<StrokeDrag>(editor.Drag) || editor.Tools.InUse == Tool::Pencil)
        return;
    Pointer pointer{kLeftButton, isHeld ? 1 : 0, editor.LastPointer.X, editor.LastPointer.Y};
    HandlersOf(editor.Tools.InUse).Move(editor, pointer);
}

void LeaveScene(Editor& editor) {
    editor.Overlays.PointerMark.Visible = false;
}

void KeyDownScene(Editor& editor, SceneKey key) {
    if (key == SceneKey::Delete) {
        if (editor.States.IsEnabled(CommandId::Delete))
            DeleteSelected(editor);
        return;
    }
    if (!editor.Page().HasSelection()) {
        editor.Changed.Tip = {tips::NothingToMove};
        return;
    }
    switch (key) {
        case SceneKey::Left:
            return Nudge(editor, -1, 0);
        case SceneKey::Up:
            return Nudge(editor, 0, -1);
        case SceneKey::Right:
            return Nudge(editor, 1, 0);
        default:
            return Nudge(editor, 0, 1);
    }
}

}  // namespace orbelle::editing
