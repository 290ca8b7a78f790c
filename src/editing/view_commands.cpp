#include "editing/view_commands.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "graphics/geometry.h"

namespace orbelle::editing {

using document::ScrollBar;

namespace {

// A bar for a page that is larger than the scene, as far along as before.
void FitBar(ScrollBar& bar, double page, int scene) {
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

// The page's middle in the middle of the scene.
void CentrePage(Editor& editor) {
    editor.View.HorizontalScroll = editor.View.VerticalScroll = {};
    FitScrollBars(editor);
}

void SetZoom(Editor& editor, double zoom) {
    // Steps of a fifth must not drift.
    constexpr double kExact = 1000;
    editor.View.Zoom =
        std::clamp(std::round(zoom * kExact) / kExact, editor.Zoom.Minimum, editor.Zoom.Maximum);
    CentrePage(editor);
    editor.Changed.Scene = true;
}

// What the user does meets the page as it is to be seen, not on its way there.
void EndAnimation(Editor& editor) {
    if (std::exchange(editor.Zoom.IsAnimated, false))
        SetZoom(editor, editor.Zoom.Target);
}

// By the user.
void ZoomTo(Editor& editor, double zoom) {
    editor.Zoom.FollowsScene = false;
    SetZoom(editor, zoom);
}

void Scroll(Editor& editor, ScrollBar& bar, int value) {
    if (!bar.Visible)
        return;
    editor.Zoom.FollowsScene = false;
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

template <typename ZoomStep>
void ZoomAt(Editor& editor, double x, double y, const ZoomStep& zoomStep) {
    document::View& view = editor.View;
    if (!editor.DocumentExists)
        return;
    EndAnimation(editor);
    const document::Page& page = editor.Page();
    const double pageX = (x - document::PageOffsetX(page, view)) / view.Zoom;
    const double pageY = (y - document::PageOffsetY(page, view)) / view.Zoom;
    zoomStep(editor);
    ScrollTo(view.HorizontalScroll, pageX, x, page.Width, view.SceneWidth, view.Zoom);
    ScrollTo(view.VerticalScroll, pageY, y, page.Height, view.SceneHeight, view.Zoom);
    editor.Changed.Scene = true;
}

// The zoom at which the page fills the scene along the side that is tighter.
double FillingZoom(int sceneWidth, int sceneHeight, const document::Page& page) {
    constexpr double kMargin = 4;
    return std::min((sceneWidth - kMargin) / page.Width, (sceneHeight - kMargin) / page.Height);
}

// The same in whole steps from 1 on, else in tenths.
double FitZoom(const Editor& editor) {
    const double zoom = FillingZoom(editor.View.SceneWidth, editor.View.SceneHeight, editor.Page());
    return std::clamp(zoom >= 1 ? std::floor(zoom) : document::RoundToTenth(zoom),
                      editor.Zoom.Minimum, editor.Zoom.Maximum);
}

// Of a page that has come.
double FirstZoom(const Editor& editor) {
    const document::View& view = editor.View;
    const double whole = WholeFitZoom(view.SceneWidth, view.SceneHeight, editor.Page());
    return editor.OpensWhole && whole >= 1 ? whole : editor.OpeningZoom;
}

void EnterOriginalSize(Editor& editor) {
    ZoomState& zoom = editor.Zoom;
    zoom.SavedZoom = editor.View.Zoom;
    zoom.SavedHorizontal = editor.View.HorizontalScroll;
    zoom.SavedVertical = editor.View.VerticalScroll;
    ZoomTo(editor, 1);
}

void LeaveOriginalSize(Editor& editor) {
    ZoomState& zoom = editor.Zoom;
    if (zoom.SavedZoom == 1 || zoom.PageSizeChanged) {
        zoom.SavedZoom = FitZoom(editor);
        zoom.SavedHorizontal = {};
        zoom.SavedVertical = {};
        zoom.PageSizeChanged = false;
    }
    if (zoom.SavedZoom == 1)
        return;
    editor.View.Zoom = zoom.SavedZoom;
    editor.View.HorizontalScroll = zoom.SavedHorizontal;
    editor.View.VerticalScroll = zoom.SavedVertical;
    FitScrollBars(editor);
    editor.Changed.Scene = true;
}

}  // namespace

void ResizeScene(Editor& editor, int width, int height) {
    editor.View.SceneWidth = width;
    editor.View.SceneHeight = height;
    FitScrollBars(editor);
    FollowScene(editor);
    editor.Changed.Scene = true;
}

void FollowScene(Editor& editor) {
    ZoomState& zoom = editor.Zoom;
    if (!zoom.FollowsScene || !std::holds_alternative<std::monostate>(editor.Drag))
        return;
    zoom.Target = FirstZoom(editor);
    const double shown = editor.View.Zoom;
    if (zoom.IsAnimated ? shown < zoom.Target : shown == zoom.Target)
        return;
    zoom.IsAnimated = false;
    SetZoom(editor, zoom.Target);
}

void FitScrollBars(Editor& editor) {
    document::View& view = editor.View;
    FitBar(view.HorizontalScroll, editor.Page().Width * view.Zoom, view.SceneWidth);
    FitBar(view.VerticalScroll, editor.Page().Height * view.Zoom, view.SceneHeight);
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
    EndAnimation(editor);
    editor.Zoom.IsOriginalSize = false;
    const double zoom = editor.View.Zoom;
    ZoomTo(editor, zoom + (zoom < 1 ? 0.2 : 2));
}

void ZoomOut(Editor& editor) {
    if (!editor.States.IsEnabled(CommandId::ZoomOut))
        return;
    EndAnimation(editor);
    editor.Zoom.IsOriginalSize = false;
    const double zoom = editor.View.Zoom;
    const double next = zoom - (zoom >= 2 ? 2 : 0.2);
    ZoomTo(editor, zoom > 1 ? std::max(next, 1.0) : next);
}

void OriginalSize(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    EndAnimation(editor);
    editor.Zoom.IsOriginalSize = !editor.Zoom.IsOriginalSize;
    if (editor.Zoom.IsOriginalSize)
        EnterOriginalSize(editor);
    else
        LeaveOriginalSize(editor);
}

double WholeFitZoom(int sceneWidth, int sceneHeight, const document::Page& page) {
    constexpr double kSteps = 5;  // to 1
    const ZoomState limits;
    const double zoom = FillingZoom(sceneWidth, sceneHeight, page);
    return std::clamp(zoom >= 1 ? std::floor(zoom) : std::floor(zoom * kSteps) / kSteps,
                      limits.Minimum, limits.Maximum);
}

void FitWhole(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    EndAnimation(editor);
    editor.Zoom.IsOriginalSize = false;
    ZoomTo(editor, WholeFitZoom(editor.View.SceneWidth, editor.View.SceneHeight, editor.Page()));
}

void ZoomInAt(Editor& editor, float x, float y) {
    ZoomAt(editor, x, y, ZoomIn);
}

void ZoomOutAt(Editor& editor, float x, float y) {
    ZoomAt(editor, x, y, ZoomOut);
}

void ZoomAboutMiddle(Editor& editor, double zoom) {
    ZoomAt(editor, editor.View.SceneWidth / 2.0, editor.View.SceneHeight / 2.0,
           [zoom](Editor& zoomed) {
               zoomed.Zoom.IsOriginalSize = false;
               ZoomTo(zoomed, zoom);
           });
}

void StartZoomIn(Editor& editor) {
    editor.Zoom.Target = FirstZoom(editor);
    editor.Zoom.IsAnimated = editor.AnimatesZoom;
    editor.Zoom.IsOriginalSize = false;
    editor.Zoom.FollowsScene = editor.OpensWhole;
    SetZoom(editor, editor.AnimatesZoom ? editor.Zoom.Minimum : editor.Zoom.Target);
}

void TickZoomAnimation(Editor& editor) {
    constexpr int kTicks = 4;
    const ZoomState& zoom = editor.Zoom;
    if (!zoom.IsAnimated)
        return;
    const double step = (zoom.Target - zoom.Minimum) / kTicks;
    SetZoom(editor, std::min(editor.View.Zoom + step, zoom.Target));
    editor.Zoom.IsAnimated = editor.View.Zoom < zoom.Target;
}

}  // namespace orbelle::editing
