// A stroke on the selected layer's picture: kept as it was at the press, drawn anew at each move,
// and drawn for good at the release.
#pragma once

#include "editing/tools/tool_handlers.h"

namespace orbelle::editing {

// Nothing without a selected layer. Throws document::HistoryLimit when no step fits.
void BeginStroke(Editor& editor, const Pointer& pointer);

// Hard-edged, on the picture of the press; then composes.
void PreviewStroke(Editor& editor, Pointer& pointer);

// The undo step, the final stroke (smooth but for the pencil and rectangles) and the layer's new
// region, which stands at the page's corner instead of the layer's place until the next move of the
// layer (docs/oddities.md, "Region after drawing").
AfterRelease CommitStroke(Editor& editor, const Pointer& pointer);

}  // namespace orbelle::editing
