// What becomes of a selection.
#pragma once

#include "editing/editor.h"
#include "editing/step_names.h"

namespace orbelle::editing {

// Selecting is no undo step. These two give up an open polygon and leave the tool in use as it is.

// The whole page. Nothing without a document.
void SelectAll(Editor& editor);
// What is not selected of the page; the whole page inverted is no selection.
void InvertSelection(Editor& editor);

// Ends the selection, if there is one.
void EndSelection(Editor& editor);

// The same for a selection that has no pixel on the page: whether that was so.
bool EndSelectionOffPage(Editor& editor);

// The selected pixels as a layer of their own that is in no stack. Needs a selection on the
// page and a selected layer.
document::IconLayer CopyOfSelectedPixels(const Editor& editor);

// An undo step: cuts the selected pixels out of the selected layer and ends the selection. Nothing
// happens without a selected layer; a selection off the page only ends.
void DeleteSelection(Editor& editor);

// The same as a step of another name.
void RemoveSelection(Editor& editor, steps::Name step);

// Cuts the selected pixels into a new layer above the selected one, or on top and out of the top
// layer when none is selected; the selection ends. Needs a selection on the page and a layer. Two
// undo steps (docs/oddities.md, "Two undo steps").
void FloatSelection(Editor& editor);

}  // namespace orbelle::editing
