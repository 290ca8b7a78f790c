#include "editing/scene_input.h"

#include "editing/command_frame.h"
#include "editing/drag.h"
#include "editing/layer_commands.h"
#include "editing/scene_mapping.h"
#include "editing/tips.h"
#include "editing/tools/polygon.h"
#include "editing/view_commands.h"

namespace orbelle::editing {
namespace {

constexpr int kLeftButton = 1;

// An event that fails gives up the drag that it belongs to.
template <typename Handler>
void HandleInput(Editor& editor, Handler&& handler) {
    const std::string failure = Guarded([&] { handler(); });
    if (!failure.empty()) {
        AbandonDrag(editor);
        editor.Host.ShowMessage(failure);
    }
}

// A page without extent on the scene has no pixel under the pointer.
bool CanMap(const Editor& editor) {
    return editor.View.Zoom != 0;
}

void PressLeft(Editor& editor, const Pointer& pointer) {
    if (editor.Document.LayerCount() == 0 || !CanMap(editor))
        return;
    // A release can get lost, as when a menu opens in between.
    AbandonDrag(editor);
    HandlersOf(editor.CurrentTool).Press(editor, pointer);
    EnableLayerSliders(editor);
    editor.TipCounter = kTipsExpired;
}

void PressOther(Editor& editor, const Pointer& pointer) {
    if (editor.CurrentTool == Tool::SelectPolygon) {
        ClosePolygon(editor);
        return;
    }
    editor.Host.ShowLayerMenu(pointer.X, pointer.Y);
    editor.TipCounter = kTipsExpired;
}

void ShowMarker(Editor& editor, const Pointer& pointer) {
    const SceneMapping mapping = MappingOf(editor);
    const graphics::PointF page = ScreenToPage(mapping, pointer.X, pointer.Y);
    const bool isBrush = editor.CurrentTool == Tool::BrushEraser;
    const double size = isBrush ? editor.Controls.BrushSize.Value * mapping.Zoom : mapping.Zoom;
    const double reach = isBrush ? graphics::RoundToEven(size) / 2 : 0;
    editor.Overlays.PointerMark = {
        true,
        isBrush,
        {static_cast<float>(mapping.PageOffsetX + page.X * mapping.Zoom - reach),
         static_cast<float>(mapping.PageOffsetY + page.Y * mapping.Zoom - reach),
         static_cast<float>(size), static_cast<float>(size)},
    };
}

}  // namespace

void AbandonDrag(Editor& editor) {
    if (!editor.DragActive)
        return;
    editor.DragActive = false;
    HandlersOf(editor.CurrentTool).Abandon(editor);
    editor.Host.OverlaysChanged();
}

void PressScene(Editor& editor, const Pointer& pointer) {
    HandleInput(editor, [&] {
        editor.MouseDownX = pointer.X;
        editor.MouseDownY = pointer.Y;
        editor.Controls.FillBarVisible = false;
        if (pointer.Button == kLeftButton)
            PressLeft(editor, pointer);
        else
            PressOther(editor, pointer);
    });
    editor.Host.ControlsChanged();
    editor.Host.OverlaysChanged();
}

void MoveScene(Editor& editor, const Pointer& pointer) {
    const bool stayed = pointer.X == editor.LastMouseX && pointer.Y == editor.LastMouseY;
    if ((stayed && editor.CurrentTool != Tool::SelectPolygon) || !CanMap(editor))
        return;
    HandleInput(editor, [&] {
        editor.LastMouseX = pointer.X;
        editor.LastMouseY = pointer.Y;
        Pointer position = pointer;
        if (editor.DragActive)
            HandlersOf(editor.CurrentTool).Move(editor, position);
        else if (editor.CurrentTool == Tool::SelectPolygon)
            StretchRubberBand(editor, position);
        if (editor.CurrentTool != Tool::Move)
            ShowMarker(editor, position);
    });
    editor.Host.OverlaysChanged();
}

void ReleaseScene(Editor& editor, const Pointer& pointer) {
    HandleInput(editor, [&] {
        AfterRelease after = AfterRelease::Compose;
        if (editor.DragActive)
            after = HandlersOf(editor.CurrentTool).Release(editor, pointer);
        if (after == AfterRelease::Compose)
            Compose(editor);
        if (after == AfterRelease::HideTips || !editor.Document.HasSelection())
            editor.Host.HideTips();
        editor.DragActive = false;
    });
    editor.Host.ControlsChanged();
    editor.Host.OverlaysChanged();
}

void KeyDownScene(Editor& editor, int keyCode) {
    if (!editor.Document.HasSelection()) {
        editor.Host.ShowTips(tips::NothingToMove);
        return;
    }
    HandleInput(editor, [&] {
        AbandonDrag(editor);
        HandlersOf(editor.CurrentTool).Key(editor, keyCode);
    });
    editor.Host.ControlsChanged();
}

void CancelInput(Editor& editor) {
    AbandonDrag(editor);
    DropPolygon(editor);
    DrawScene(editor);
    editor.Host.OverlaysChanged();
}

}  // namespace orbelle::editing
