// A filter run on a copy of a picture, for the selected layer.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// `filter` changes a copy of `source`, cut to the layer's ImageWidth x ImageHeight, which then is
// the selected layer's picture. Nothing changes when either has no pixel. Needs a selected layer.
template <typename Filter>
void FilterLayerPixels(Editor& editor, const graphics::Bitmap& source, Filter&& filter) {
    document::IconLayer& layer = editor.Page().Selected();
    graphics::Bitmap work = CopyBitmap(source, layer.ImageWidth, layer.ImageHeight);
    if (!source.IsEmpty() && !work.IsEmpty()) {
        filter(work);
        layer.Image = work;
    }
    editor.Changed.Pixels = true;
}

}  // namespace orbelle::editing
