// Cut, copy, paste and delete. Each does nothing without a selected layer, and only ends a
// selection that has no pixel on the page, unless said otherwise.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// The text that marks the clipboard's content as the program's own.
inline constexpr char kClipboardMark[] = "Orbelle";

// The selected pixels, or the whole layer, into ClipboardLayer and onto the clipboard.
void CopyToClipboard(Editor& editor);

// Copies, then deletes the selection or the layer.
void CutToClipboard(Editor& editor);

// An undo step, then a new layer above the selected one (on top when none is selected): what was
// copied, at its place on the page, or another program's picture at the page's corner, opaque.
// Nothing is added when the clipboard holds no picture.
void PasteFromClipboard(Editor& editor);

// Another program's picture that would be pasted. Empty: there is none, or what was copied here is.
graphics::Bitmap ForeignPicture(Editor& editor);

// The same step with another program's picture that has been read already. One that `fitsPage` is
// shrunk until it does and lies in the middle of the page.
void PastePicture(Editor& editor, const graphics::Bitmap& picture, bool fitsPage);

// The Edit menu's Delete: the selection if there is one, else the selected layer.
void DeleteSelected(Editor& editor);

}  // namespace orbelle::editing
