// The whole state of the editor. The commands in this folder are plain routines that work on it.
#pragma once

#include <array>
#include <string>

#include "document/compositor.h"
#include "document/document.h"
#include "document/undo_history.h"
#include "document/view.h"
#include "editing/controls.h"
#include "editing/editor_host.h"
#include "filters/selection_region.h"
#include "formats/export_image.h"
#include "graphics/bitmap.h"
#include "graphics/dib_save.h"

namespace orbelle::editing {

inline constexpr char kProductName[] = "Varnel Orbelle";

// The view that Original Size goes back to.
struct SavedView {
    double Zoom = 1;
    document::ScrollBar Hs1;
    document::ScrollBar Vs1;
};

struct Editor {
    explicit Editor(EditorHost& host) : Host(host) {}

    EditorHost& Host;

    document::Document Document;
    document::UndoHistory History;
    editing::Controls Controls;
    formats::ExportSettings ExportSettings;
    std::string Title = kProductName;

    graphics::DIBSave Canvas;  // the composed page, without its background
    graphics::Bitmap Scene;    // what the window shows, of the view's size
    document::Compositor Compositor;

    document::View View;
    SavedView SavedZoom;
    int MaxZoom = 20;
    bool ZoomBusy = false;   // a zoom command runs: scroll bars redraw nothing
    double ZoomStep = -0.2;  // what the zoom animation subtracts a tick
    double ZoomTarget = 1;   // where it stops

    filters::ClsFilters Filters;  // holds the selection

    std::array<graphics::Argb, 2> Colors{};  // foreground, background

    // Between the press and the release of a slider: the picture or place that its steps start
    // from.
    graphics::Bitmap AdjustSnapshot;
    graphics::RectF ScaleStartRect;

    // Set while a document exists; cleared while one is being opened.
    bool DocumentExists = false;
};

}  // namespace orbelle::editing
