#include "editing/view_commands.h"

#include <algorithm>
#include <cmath>

#include "document/scene_painter.h"
#include "editing/tools/polygon.h"
#include "graphics/geometry.h"

namespace orbelle::editing {

using document::ScrollBar;

namespace {

Button& MainButton(Editor& editor, int number) {
    return editor.Controls.MainBar[static_cast<std::size_t>(number)];
}

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
    FitBar(view.HorizontalScroll, editor.Document.PageWidth * view.Zoom, view.SceneWidth, mayHide);
    FitBar(view.VerticalScroll, editor.Document.PageHeight * view.Zoom, view.SceneHeight, mayHide);
}

void EndZoom(Editor& editor, bool redraw) {
    editor.ZoomBusy = false;
    if (redraw)
        DrawScene(editor);
    editor.Host.ControlsChanged();
}

void Scroll(Editor& editor, ScrollBar& bar, int value) {
    bar.Value = std::clamp(value, 0, bar.Max);
    if (!editor.ZoomBusy)
        DrawScene(editor);
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
    const document::Document& document = editor.Document;
    const double pageX = (x - document::PageOffsetX(document, view)) / view.Zoom;
    const double pageY = (y - document::PageOffsetY(document, view)) / view.Zoom;
    zoomStep(editor);
    ScrollTo(view.HorizontalScroll, pageX, x, document.PageWidth, view.SceneWidth, view.Zoom);
    ScrollTo(view.VerticalScroll, pageY, y, document.PageHeight, view.SceneHeight, view.Zoom);
    DrawScene(editor);
}

// The zoom at which the page's larger side fills the scene, in tenths.
double FitZoom(const Editor& editor) {
    constexpr double kMargin = 4;
    const document::Document& page = editor.Document;
    const double zoom = page.PageWidth <= page.PageHeight
                            ? (editor.View.SceneHeight - kMargin) / page.PageHeight
                            : (editor.View.SceneWidth - kMargin) / page.PageWidth;
    return std::min<double>(document::RoundToTenth(zoom), editor.MaxZoom);
}

void EnterOriginalSize(Editor& editor) {
    document::View& view = editor.View;
    editor.SavedZoom = {view.Zoom, view.HorizontalScroll, view.VerticalScroll};
    editor.ZoomStep = view.Zoom < 1 ? -0.3 : 3;
    view.Zoom = 1;
    view.HorizontalScroll.Visible = view.SceneWidth < editor.Document.PageWidth;
    view.VerticalScroll.Visible = view.SceneHeight < editor.Document.PageHeight;
    Centre(view.HorizontalScroll);
    Centre(view.VerticalScroll);
    DrawScene(editor);
}

void LeaveOriginalSize(Editor& editor) {
    document::View& view = editor.View;
    if (editor.SavedZoom.Zoom == 1 || editor.Controls.PageSizeChanged) {
        editor.SavedZoom = {FitZoom(editor), {}, {}};
        editor.Controls.PageSizeChanged = false;
    }
    if (editor.SavedZoom.Zoom == 1)
        return;
    view.HorizontalScroll = editor.SavedZoom.HorizontalScroll;
    view.VerticalScroll = editor.SavedZoom.VerticalScroll;
    editor.ZoomStep = editor.SavedZoom.Zoom < 1 ? 0.3 : -3;
    view.Zoom = editor.SavedZoom.Zoom;
    DrawScene(editor);
}

}  // namespace

void Compose(Editor& editor) {
    editor.Compositor.Compose(editor.Document, graphics::InterpolationMode::NearestNeighbor,
                              editor.Canvas);
    DrawScene(editor);
}

void DrawScene(Editor& editor) {
    // While a polygon is open its outline is shown in place of the selection.
    const bool polygonOpen = !editor.PolygonPoints.empty();
    document::Selection nothingSelected;
    document::DrawScene(editor.Scene, editor.Canvas, editor.Document, editor.View,
                        polygonOpen ? nothingSelected : editor.Selection);
    if (polygonOpen)
        DrawOpenPolygon(editor);
    editor.Host.SceneChanged();
}

void ResizeScene(Editor& editor, int width, int height) {
    editor.View.SceneWidth = width;
    editor.View.SceneHeight = height;
    DrawScene(editor);
}

void ScrollHorizontally(Editor& editor, int value) {
    Scroll(editor, editor.View.HorizontalScroll, value);
}

void ScrollVertically(Editor& editor, int value) {
    Scroll(editor, editor.View.VerticalScroll, value);
}

void ZoomIn(Editor& editor) {
    Button& zoomIn = MainButton(editor, main_buttons::ZoomIn);
    if (!editor.DocumentExists || !zoomIn.Enabled)
        return;
    editor.ZoomBusy = true;
    MainButton(editor, main_buttons::OriginalSize).Pressed = false;
    MainButton(editor, main_buttons::ZoomOut).Enabled = true;
    double& zoom = editor.View.Zoom;
    zoom += zoom < 1 ? 0.2 : 2;
    if (zoom >= editor.MaxZoom) {
        zoomIn.Enabled = false;
        zoom = editor.MaxZoom;
        // Deliberately without a redraw: the last step shows with the next change.
        EndZoom(editor, false);
        return;
    }
    FitBars(editor, false);
    EndZoom(editor, true);
}

void ZoomOut(Editor& editor) {
    Button& zoomOut = MainButton(editor, main_buttons::ZoomOut);
    if (!editor.DocumentExists || !zoomOut.Enabled)
        return;
    editor.ZoomBusy = true;
    MainButton(editor, main_buttons::OriginalSize).Pressed = false;
    double& zoom = editor.View.Zoom;
    if (zoom - editor.MaxZoom <= 1)
        MainButton(editor, main_buttons::ZoomIn).Enabled = true;
    if (zoom >= 2 || zoom <= 0) {
        // Deliberately reaches 0 and goes below it: the page is then empty.
        zoom -= 2;
    } else if (std::lround(zoom * 100) == 20) {
        zoomOut.Enabled = false;
        EndZoom(editor, false);
        return;
    } else {
        zoom -= 0.2;
    }
    FitBars(editor, true);
    EndZoom(editor, true);
}

void OriginalSize(Editor& editor) {
    if (!editor.DocumentExists)
        return;
    Button& toggle = MainButton(editor, main_buttons::OriginalSize);
    toggle.Pressed = !toggle.Pressed;
    if (toggle.Pressed)
        EnterOriginalSize(editor);
    else
        LeaveOriginalSize(editor);
    editor.Host.ControlsChanged();
}

void ZoomInAt(Editor& editor, float x, float y) {
    ZoomAt(editor, x, y, ZoomIn);
}

void ZoomOutAt(Editor& editor, float x, float y) {
    ZoomAt(editor, x, y, ZoomOut);
}

void StartZoomIn(Editor& editor) {
    editor.View.Zoom = 0;
    editor.ZoomStep = -0.2;
    editor.ZoomTarget = 1;
    editor.Host.StartZoomAnimation();
}

bool TickZoomAnimation(Editor& editor) {
    double& zoom = editor.View.Zoom;
    zoom = document::RoundToTenth(zoom - editor.ZoomStep);
    const bool done = editor.ZoomStep <= 0 ? zoom >= editor.ZoomTarget : zoom <= editor.ZoomTarget;
    if (done)
        zoom = editor.ZoomTarget;
    DrawScene(editor);
    return done;
}

}  // namespace orbelle::editing
