// Stage two of showing a document: the composed page on the scene, with all that surrounds it.
#pragma once

#include <optional>

#include "document/page.h"
#include "document/selection.h"
#include "document/view.h"
#include "graphics/bitmap.h"
#include "graphics/geometry.h"

namespace orbelle::document {

// The scene around the page.
inline constexpr graphics::Argb kSceneColor = graphics::MakeArgb(255, 110, 110, 110);

// What the host may choose of how a page is shown.
struct SceneLooks {
    graphics::Argb Ground = kSceneColor;  // opaque; around the page
    bool SmoothWhenSmall = false;         // below a zoom of 1 the picture is filtered

    bool operator==(const SceneLooks&) const = default;
};

// Paints `canvas` (the composed page) on `scene`, whose size is the view's: `background` or,
// where that is 0, a checkerboard, page shadow, page frame, picture, and the page dimmed outside
// the selection. The shadow is soft, and lies right of the page and below it only. Nothing happens
// while the view is not active.
void DrawScene(graphics::Bitmap& scene, const graphics::Bitmap& canvas, graphics::Argb background,
               const View& view, const Selection& selection, const SceneLooks& looks = {});

// Where the composed page lies on the scene, scene pixels; its sides truncated to whole ones.
graphics::RectI PageOnScene(const graphics::Bitmap& canvas, const View& view);

// Where the outline around the selected layer stands, in scene pixels: two pixels outside the layer
// on every side. None when no visible layer is selected.
std::optional<graphics::RectI> ObjectFrame(const Page& page, const View& view);

}  // namespace orbelle::document
