// How the page lies on the scene: zoom and scroll position.
#pragma once

#include "document/page.h"

namespace orbelle::document {

// Value runs from 0 to Max.
struct ScrollBar {
    int Value = 5;
    int Max = 10;
    bool Visible = false;
};

struct View {
    int SceneWidth = 1024;  // scene pixels
    int SceneHeight = 768;
    double Zoom = 1;             // scene pixels per page pixel
    ScrollBar HorizontalScroll;  // horizontal
    ScrollBar VerticalScroll;    // vertical
    bool ViewActive = false;     // set once a document exists; nothing is painted before
};

// The number as text with one decimal reads: rounded to tenths, halves away from zero.
double RoundToTenth(double value);

// Value / Max in tenths: scrolling has eleven positions (docs/oddities.md, "Eleven positions"). 0
// when Max is 0.
double ScrollRatio(const ScrollBar& bar);

// Where the page's top left corner lies, in scene pixels: ScrollRatio x (scene size - page size x
// Zoom), truncated. All that is painted or hit on the scene goes by this corner.
int PageOffsetX(const Page& page, const View& view);
int PageOffsetY(const Page& page, const View& view);

// The same along one side, for a page of that length on a scene of that length.
int PageOffset(const ScrollBar& bar, int scene, int page, double zoom);

}  // namespace orbelle::document
