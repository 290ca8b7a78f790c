// Where a new layer goes in the stack, and how one is made from a picture.
#pragma once

#include "document/page.h"

namespace orbelle::document {

// Which size the layers that move up get when their pictures are copied: the fields ImageWidth and
// ImageHeight, or, for an empty layer, the rounded size of Rect (docs/oddities.md, "Making room").
enum class SlotCopySize { Image, Rect };

// Opens a slot directly above the selected layer, or on top when none is selected, and selects it.
// Until the caller fills it, the slot holds a copy of the layer below it, but for its name (a blank
// record on top of an unselected stack). Throws Error when that holds kMaxMadeLayers or more.
IconLayer& OpenLayerSlot(Page& page, SlotCopySize size);

// Fills the layer with the picture at its own size in the middle of the page; the offsets truncate,
// so a picture larger than the page gets a negative place. An empty picture makes a layer of 0 by
// 0. A picture without a visible pixel leaves the Region that the slot held, moved to the new
// place (docs/oddities.md, "Blank pictures").
void MakeImageLayer(const Page& page, IconLayer& layer, const graphics::Bitmap& image);

// A page of the picture's size with the picture as its only layer, which is selected.
Page MakePicturePage(const graphics::Bitmap& picture);

// Fills the layer as a new transparent one: Rect, ImageWidth and ImageHeight follow width and
// height, the picture is always of the page's size. It has no Region.
void MakeEmptyLayer(const Page& page, IconLayer& layer, float width, float height);

}  // namespace orbelle::document
