// The whole state of the editor. The commands in this folder are plain routines that work on it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "document/compositor.h"
#include "document/document.h"
#include "document/selection.h"
#include "document/undo_history.h"
#include "document/view.h"
#include "editing/controls.h"
#include "editing/editor_host.h"
#include "editing/overlays.h"
#include "editing/tool.h"
#include "formats/export_image.h"
#include "graphics/bitmap.h"

namespace orbelle::editing {

inline constexpr char kProductName[] = "Varnel Orbelle";

// The view that Original Size goes back to.
struct SavedView {
    double Zoom = 1;
    document::ScrollBar HorizontalScroll;
    document::ScrollBar VerticalScroll;
};

struct Editor {
    explicit Editor(EditorHost& host) : Host(host) {}

    EditorHost& Host;

    document::Document Document;
    document::UndoHistory History;
    editing::Controls Controls;
    formats::ExportSettings ExportSettings;
    std::string Title = kProductName;

    graphics::Bitmap Canvas;  // the composed page, without its background
    graphics::Bitmap Scene;   // what the window shows, of the view's size
    document::Compositor Compositor;

    document::View View;
    SavedView SavedZoom;
    int MaxZoom = 20;
    bool ZoomBusy = false;   // a zoom command runs: scroll bars redraw nothing
    double ZoomStep = -0.2;  // what the zoom animation subtracts a tick
    double ZoomTarget = 1;   // where it stops

    document::Selection Selection;

    Tool CurrentTool = Tool::Move;
    editing::FillKind FillKind = editing::FillKind::Solid;
    std::array<graphics::Argb, 2> Colors{};  // foreground, background
    int ActiveColor = 0;                     // the one in use
    int LastToolButton = 1;                  // of ToolBox

    // The pointer on the scene, scene pixels.
    bool DragActive = false;  // a left press has begun what the next release ends
    float MouseDownX = 0;     // the last press; a brush and a selection frame move them
    float MouseDownY = 0;
    float LastMouseX = 0;  // the last move
    float LastMouseY = 0;
    editing::Overlays Overlays;
    int TipCounter = 0;  // age of the open tips in ticks

    // Between press and release: where the layer was, page pixels, and how it looked.
    float LayerStartX = 0;
    float LayerStartY = 0;
    graphics::Bitmap StrokeBackup;
    std::vector<graphics::PointF> PencilPoints;  // layer pixels

    std::vector<graphics::PointF> PolygonPoints;  // of an open polygon, page pixels

    // What the last Copy took; it counts while the clipboard carries the product's mark.
    std::optional<document::IconLayer> ClipboardLayer;

    // Between the press and the release of a slider: the picture or place that its steps start
    // from.
    graphics::Bitmap AdjustSnapshot;
    graphics::RectF ScaleStartRect;

    // Set while a document exists; cleared while one is being opened.
    bool DocumentExists = false;
};

}  // namespace orbelle::editing
