#include "editing/view_commands.h"

#include <algorithm>
#include <cmath>

#include "graphics/geometry.h"

namespace orbelle::editing {

using document::ScrollBar;

namespace {

void Centre(ScrollBar& bar) {
    bar.Value = graphics::RoundToEven(bar.Max / 2.0);
}

// A bar for a page that is larger than the scene; one for a page that fits stays, or is hidden.
void FitBar(ScrollBar& bar, double page, int scene, bool mayHide) {
    if (page > scene) {
        bar.Max = static_cast<int>(page - scene);
        bar.Visible = true;
    } else if (mayHide) {
        bar.Visible = false;
    }
    Centre(bar);
}

void FitBars(Editor& editor, bool mayHide) {
    document::View& view = editor.View;
    FitBar(view.HorizontalScroll, editor.Page().Width * view.Zoom, view.SceneWidth, mayHide);
    FitBar(view.VerticalScroll, editor.Page().Height * view.Zoom, view.SceneHeight, mayHide);
}

void KeepScrolled(ScrollBar& bar, double page, int scene) {
    const int room = static_cast<int>(page - scene);
    if (room < 1) {
        bar = {};
        return;
    }
    const double ratio = bar.Max == 0 ? 0 : static_cast<double>(bar.Value) / bar.Max;
    bar.Max = room;
    bar.Value = graphics::RoundToEven(ratio * room);
    bar.Visible = true;
}

void Scroll(Editor& editor, ScrollBar& bar, int value) {
    bar.Value = std::clamp(value, 0, bar.Max);
    editor.Changed.Scene = true;
}

// Scrolls so that a page place, in page pixels, comes near a scene place.
void ScrollTo(ScrollBar& bar, double pagePlace, double scenePlace, double page, int scene,
              double zoom) {
    const double room = scene - page * zoom;
    if (bar.Visible && room < 0)
        bar.Value = std::clamp(
            graphics::RoundToEven((scenePlace - pagePlace * zoom) / room * bar.Max), 0, bar.Max);
}

void ZoomAt(Editor& editor, float x, float y, void (*zoomStep)(Editor&)) {
    document::View& view = editor.View;
    if (!editor.DocumentExists || view.Zoom <= 0)
        return zoomStep(editor);
    const document::Page& page = editor.Page();
    const double pageX = (x - document::PageOffsetX(page, view)) / view.Zoom;
    const double pageY = (y - document::PageOffsetY(page, view)) / view.Zoom;
    zoomStep(editor);
    ScrollTo(view.HorizontalScroll, pageX, x, page.Width, view.SceneWidth, view.Zoom);
    ScrollTo(view.VerticalScroll, pageY, y, page.Height, view.SceneHeight, view.Zoom);
    editor.Changed.Scene = true;
}

// The zoom at which the page's larger side fills the scene, in tenths.
double FitZoom(const Editor& editor) {
    constexpr double kMargin = 4;
    const document::Page& page = editor.Page();
    const double zoom = page.Width <= page.Height
                            ? (editor.View.SceneHeight - kMargin) / page.Height
                            : (editor.View.SceneWidth - kMargin) / page.Width;
    return std::min<double>(document::RoundToTenth(zoom), editor.Zoom.Maximum);
}

void EnterOriginalSize(Editor& editor) {
    document::View& view = editor.View;
    ZoomState& zoom = editor.Zoom;
    zoom.SavedZoom = view.Zoom;
    zoom.SavedHorizontal = view.HorizontalScroll;
    zoom.SavedVertical = view.VerticalScroll;
    view.Zoom = 1;
    view.HorizontalScroll.Visible = view.SceneWidth < editor.Page().Width;
    view.VerticalScroll.Visible = view.SceneHeight < editor.Page().Height;
    Centre(view.HorizontalScroll);
    Centre(view.VerticalScroll);
    editor.Changed.Scene = true;
}

void LeaveOriginalSize(Editor& editor) {
    document::View& view = editor.View;
    ZoomState& zoom = editor.Zoom;
    if (zoom.SavedZoom == 1 || zoom.PageSizeChanged) {
        zoom.SavedZoom = FitZoom(editor);
        zoom.SavedHorizontal = {};
        zoom.SavedVertical = {};
        zoom.PageSizeChanged = false;
    }
    if (zoom.SavedZoom == 1)
        return;
    view.HorizontalScroll = zoom.SavedHorizontal;
    view.VerticalScroll = zoom.SavedVertical;
    view.Zoom = zoom.SavedZoom;
    editor.Changed.Scene = true;
}

}  // namespace

void ResizeScene(Editor& editor, int width, int height) {
    editor.View.SceneWidth = width;
    editor.View.SceneHeight = height;
    editor.Changed.Scene = true;
}

void FitScrollBars(Editor& editor) {
    document::View& view = editor.View;
    KeepScrolled(view.HorizontalScroll, editor.Page().Width * view.Zoom, view.SceneWidth);
    KeepScrolled(view.VerticalScroll, editor.Page().Height * view.Zoom, view.SceneHeight);
}

void ScrollHorizontally(Editor& editor, int value) {
    Scroll(editor, editor.View.HorizontalScroll, value);
}

void ScrollVertically(Editor& editor, int value) {
    Scroll(editor, editor.View.VerticalScroll, value);
}

void ZoomIn(Editor& editor) {
    if (!editor.States.IsEnabled(CommandId::ZoomIn))
        return;
    editor.Zoom.IsOriginalSize = false;
    double& zoom = editor.View.Zoom;
    zoom += zoom < 1 ? 0.2 : 2;
    if (zoom >= editor.Zoom.Maximum) {
        // The last step shows with the next change (docs/oddities.md, "The last zoom step").
        zoom = editor.Zoom.Maximum;
        return;
    }
    FitBars(editor, false);
    editor.Changed.Scene = true;
}

void ZoomOut(Editor& editor) {
    if (!editor.States.IsEnabled(CommandId::ZoomOut))
        return;
    editor.Zoom.IsOriginalSize = false;
    double& zoom = editor.View.Zoom;
    // Reaches 0 and goes below it; the page is then empty (docs/oddities.md, "Zoom 0").
    zoom -= zoom >= 2 || zoom <= 0 ? 2 : 0.2;
    FitBars(editor, true);
    editor.Changed.Scene = true;
}

void OriginalSize(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    editor.Zoom.IsOriginalSize = !editor.Zoom.IsOriginalSize;
    if (editor.Zoom.IsOriginalSize)
        EnterOriginalSize(editor);
    else
        LeaveOriginalSize(editor);
}

void ZoomInAt(Editor& editor, float x, float y) {
    ZoomAt(editor, x, y, ZoomIn);
}

void ZoomOutAt(Editor& editor, float x, float y) {
    ZoomAt(editor, x, y, ZoomOut);
}

void StartZoomIn(Editor& editor) {
    editor.View.Zoom = 0;
    editor.Zoom.IsAnimated = true;
}

void TickZoomAnimation(Editor& editor) {
    constexpr double kStep = 0.2, kTarget = 1;
    double& zoom = editor.View.Zoom;
    zoom = document::RoundToTenth(zoom + kStep);
    if (zoom >= kTarget) {
        zoom = kTarget;
        editor.Zoom.IsAnimated = false;
    }
    editor.Changed.Scene = true;
}

}  // namespace orbelle::editing
