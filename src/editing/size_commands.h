// The pages of single icon sizes: going to them, making and dropping them.
#pragma once

#include "editing/editor.h"
#include "filters/size_recipes.h"

namespace orbelle::editing {

// The page of that size, or the master with document::Family::kMaster, comes in force; no undo
// step. Throws Error when the size has no artwork.
void GoToPage(Editor& editor, int size);

// An undo step: the size's artwork is what the recipe makes of the master, as the only layer of a
// page that comes in force. Throws Error for a size that can have none.
void MakeArtwork(Editor& editor, int size, filters::SizeRecipe recipe);

// GoToPage, after MakeArtwork by the plain recipe where there is none.
void EditSize(Editor& editor, int size);

// An undo step: the size is made from the master again, which comes in force. Throws Error when it
// has no artwork.
void DropArtwork(Editor& editor, int size);

// What shows the page in force follows it, after another one came in force.
void ShowPageInForce(Editor& editor);

}  // namespace orbelle::editing
