// A page on the scene and a hand that moves over it.
#pragma once

#include "editing/scene_input.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"
#include "filters/create_region.h"
#include "support/pixel_runs.h"

namespace orbelle::editing {

// What is held down during a gesture.
struct Held {
    int Button = 1;
    int Shift = 0;
};

inline constexpr Held kShift{1, 1};
inline constexpr Held kRightButton{2, 0};

// Gestures are told in page pixels: the pointer is in the middle of each. The page lies centred on
// a scene of 200 x 150.
class GestureTest : public EditingTest {
protected:
    static constexpr graphics::Argb kBlue = 0xFF336699;

    GestureTest() {
        editor.View.SceneWidth = 200;
        editor.View.SceneHeight = 150;
        editor.Colors = {kBlue, 0xFFC08040};
    }

    // A page with one transparent layer of its size.
    void OpenPage(int width, int height, double zoom = 1) {
        NewPage(width, height);
        SetZoom(zoom);
        host.Tips.clear();
        host.HiddenTips = 0;
    }

    void SetZoom(double zoom) {
        editor.View.Zoom = zoom;
        Compose(editor);
    }

    // On top and selected; not an undo step.
    document::IconLayer& PutLayer(const graphics::Bitmap& image, float x, float y) {
        document::IconLayer& layer = editor.Document.Layers.emplace_back();
        layer.Image = image;
        layer.ImageWidth = image.Width();
        layer.ImageHeight = image.Height();
        layer.Rect = {x, y, static_cast<float>(image.Width()), static_cast<float>(image.Height())};
        layer.BaseRect = layer.Rect;
        filters::CreateRegion(image, layer.Region, filters::kVisibleAlpha);
        layer.Region.Translate(x, y);
        editor.Document.SelectedLayer = editor.Document.LayerCount() - 1;
        Compose(editor);
        return layer;
    }

    // In place of all layers.
    document::IconLayer& PutOnlyLayer(const graphics::Bitmap& image, float x, float y) {
        editor.Document.Layers.clear();
        return PutLayer(image, x, y);
    }

    Pointer OnScene(float x, float y, Held held = {}) const {
        return {held.Button, held.Shift, x, y};
    }

    Pointer OnPage(float x, float y, Held held = {}) const {
        const document::View& view = editor.View;
        const double zoom = view.Zoom;
        const double left = (view.SceneWidth - editor.Document.PageWidth * zoom) / 2;
        const double top = (view.SceneHeight - editor.Document.PageHeight * zoom) / 2;
        return OnScene(static_cast<float>(left + (x + 0.5) * zoom),
                       static_cast<float>(top + (y + 0.5) * zoom), held);
    }

    // A real pointer moves to the place where it presses.
    void Press(const Pointer& pointer) {
        MoveScene(editor, pointer);
        PressScene(editor, pointer);
    }

    void PressAt(float x, float y, Held held = {}) { Press(OnPage(x, y, held)); }
    void MoveTo(float x, float y, Held held = {}) { MoveScene(editor, OnPage(x, y, held)); }
    void ReleaseAt(float x, float y, Held held = {}) { ReleaseScene(editor, OnPage(x, y, held)); }

    void Click(float x, float y, Held held = {}) {
        PressAt(x, y, held);
        ReleaseAt(x, y, held);
    }

    // All but the release, which comes at the last point.
    void DragWithoutRelease(const std::vector<graphics::PointF>& points, Held held = {}) {
        PressAt(points.front().X, points.front().Y, held);
        for (std::size_t i = 1; i < points.size(); ++i)
            MoveTo(points[i].X, points[i].Y, held);
    }

    void Drag(const std::vector<graphics::PointF>& points, Held held = {}) {
        DragWithoutRelease(points, held);
        ReleaseAt(points.back().X, points.back().Y, held);
    }

    std::string Drawn(int layer = 0) { return PixelRuns(Layer(layer).Image); }
    int Alpha(int x, int y) {
        return static_cast<int>(graphics::AlphaOf(*Layer(0).Image.GetPixel(x, y)));
    }
};

}  // namespace orbelle::editing
