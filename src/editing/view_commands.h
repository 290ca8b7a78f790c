// Composing, painting, zooming and scrolling.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Flattens the visible layers into Editor::Canvas, then DrawScene.
void Compose(Editor& editor);

// Paints Editor::Scene at the view's size and tells the host.
void DrawScene(Editor& editor);

// The scene has a new size in scene pixels (each at least 1).
void ResizeScene(Editor& editor, int width, int height);

// The user moved a scroll bar to `value` (0 to its Max). Nothing is redrawn while a zoom command
// runs.
void ScrollHorizontally(Editor& editor, int value);
void ScrollVertically(Editor& editor, int value);

// Buttons 9, 10 and 11 of MainBar; each only while its button is enabled and a document exists.
// Zoom In: 0.2 more below 1, else 2 more, up to MaxZoom, which is set without a redraw. Zoom Out:
// 2 less from 2 on and at 0 or below, else 0.2 less, down to 0.2.
void ZoomIn(Editor& editor);
void ZoomOut(Editor& editor);
// A toggle: to zoom 1; back to the zoom before, or to one that fits the page to the window when
// that was 1 or the page was resized since.
void OriginalSize(Editor& editor);

// Zoom In or Out as by their buttons, with the page pixel under a scene point staying there as near
// as scrolling in tenths allows.
void ZoomInAt(Editor& editor, float x, float y);
void ZoomOutAt(Editor& editor, float x, float y);

// Sets Zoom to 0 and has the host run the animation up to 1.
void StartZoomIn(Editor& editor);

// One tick of the zoom animation. True: it is done.
bool TickZoomAnimation(Editor& editor);

}  // namespace orbelle::editing
