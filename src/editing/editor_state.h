// What the commands work on, as a value that can be kept and gone back to.
#pragma once

#include <bitset>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "document/document.h"
#include "document/selection.h"
#include "document/view.h"
#include "editing/drag.h"
#include "editing/overlays.h"
#include "editing/sliders.h"
#include "editing/tool.h"
#include "formats/export_settings.h"
#include "formats/icon_sets.h"
#include "graphics/geometry.h"

namespace orbelle::editing {

inline constexpr char kProductName[] = "Varnel Orbelle";

// What the zoom commands and the zoom animation remember; the zoom itself stands in the view.
struct ZoomState {
    double Minimum = 0.2;
    double Maximum = 20;
    bool IsOriginalSize = false;  // the button Original Size is pressed
    // The view that Original Size goes back to.
    double SavedZoom = 1;
    document::ScrollBar SavedHorizontal;
    document::ScrollBar SavedVertical;
    bool PageSizeChanged = false;  // the page was resized since the last fit to the window

    // Of the master while the page of a size is in force.
    std::optional<document::View> MasterView;

    double Target = 1;          // of the animation
    bool IsAnimated = false;    // TickZoomAnimation is to be run until this is false
    bool FollowsScene = false;  // neither zoomed nor scrolled since the page came (FollowScene)
};

// What a command that fails leaves as it was; the undo history, too. A copy costs a pointer a
// layer and the points of a stroke.
struct EditorState {
    document::Document Document;
    // Set while a document exists; cleared while one is being opened.
    bool DocumentExists = false;
    std::string Title = kProductName;

    document::Selection Selection;
    std::vector<graphics::PointF> PolygonPoints;  // of an open polygon, page pixels
    editing::Drag Drag;

    document::View View;
    ZoomState Zoom;
    ToolSettings Tools;
    editing::Sliders Sliders;
    editing::Overlays Overlays;
    formats::ExportSettings ExportSettings;
    std::bitset<std::size(formats::kIconSetNames)> ExportedSets;  // so far, by formats::IconSet
    graphics::PointF LastPointer;  // the last move on the scene, scene pixels

    // The page that is being edited.
    document::Page& Page() { return Document.Current(); }
    const document::Page& Page() const { return Document.Current(); }
};

}  // namespace orbelle::editing
