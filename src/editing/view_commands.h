// Zooming and scrolling.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// The scene has a new size in scene pixels (each at least 1). The page stays scrolled as far as
// before, and one that nobody has zoomed yet as large as it fits.
void ResizeScene(Editor& editor, int width, int height);

// The page's size or the scene's has changed: to the zoom at which the page would come now, unless
// the user has zoomed or scrolled since it came. During a drag nothing moves.
void FollowScene(Editor& editor);

// The bars as the page's size asks for, scrolled as far as before; one of a page that fits is
// hidden and in its middle.
void FitScrollBars(Editor& editor);

// The user moved a scroll bar to `value` (0 to its Max). Nothing happens to a page that fits.
void ScrollHorizontally(Editor& editor, int value);
void ScrollVertically(Editor& editor, int value);

// Each only while it is enabled. Zoom In: 0.2 more below 1, else 2 more, up to the maximum. Zoom
// Out: 2 less from 2 on, else 0.2 less, down to the minimum; on the way it stops at 1. The page's
// middle comes into the middle.
void ZoomIn(Editor& editor);
void ZoomOut(Editor& editor);
// A toggle: to zoom 1; back to the zoom before, or to one at which the whole page fits the window,
// whole from 1 on, when that was 1 or the page was resized since.
void OriginalSize(Editor& editor);

// The largest of the zooms 1, 2, 3 ... at which the whole page is seen on a scene of that size,
// scene pixels; for a page that is too large the largest of 0.8, 0.6 ... down to the minimum.
double WholeFitZoom(int sceneWidth, int sceneHeight, const document::Page& page);

// To that zoom.
void FitWhole(Editor& editor);

// Zoom In or Out with the page pixel under a scene point staying there as near as scrolling in
// tenths allows.
void ZoomInAt(Editor& editor, float x, float y);
void ZoomOutAt(Editor& editor, float x, float y);

// To any zoom, within its limits, with what is in the middle of the scene staying there as near as
// scrolling in tenths allows.
void ZoomAboutMiddle(Editor& editor, double zoom);

// A page has come: it is seen at the opening zoom, or, if the host wants that and the whole page
// can be seen at zoom 1, at the largest whole zoom that shows it. Sets the least zoom and begins
// the animation up to that, unless the host wants none.
void StartZoomIn(Editor& editor);

// One of the zoom animation's four ticks; nothing when it is over.
void TickZoomAnimation(Editor& editor);

}  // namespace orbelle::editing
