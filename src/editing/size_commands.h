// The pages of single icon sizes: going to them, making and dropping them.
#pragma once

#include "editing/editor.h"
#include "filters/size_recipes.h"

namespace orbelle::editing {

// The page of that size, or the master with document::Family::kMaster, comes in force; no undo
// step. Throws Error when the size has no artwork.
void GoToPage(Editor& editor, int size);

// The master as it looks without its background.
graphics::Bitmap MasterPicture(const Editor& editor);

// An undo step: the size's artwork is what the recipe makes of the master, as the only layer of a
// page that comes in force. Throws Error for a size that can have none.
void MakeArtwork(Editor& editor, int size, filters::SizeRecipe recipe);

// GoToPage, after MakeArtwork by the plain recipe where there is none.
void EditSize(Editor& editor, int size);

// An undo step: the size is made from the master again, which comes in force. Throws Error when it
// has no artwork.
void DropArtwork(Editor& editor, int size);

// An undo step: the picture that an export has for the size `from` becomes the only layer of `to`'s
// artwork, whose page comes in force: shrunk as an export does, or enlarged with hard edges. Throws
// Error for a size that can have none, and for the same one.
void CopyToSize(Editor& editor, int from, int to);

// The neighbour of the page in force among the master and the sizes that have artwork: the next
// smaller size, the largest after the master. Nothing happens at the ends.
void GoToNextPage(Editor& editor);
void GoToPreviousPage(Editor& editor);

// What shows the page in force follows it, after another one came in force.
void ShowPageInForce(Editor& editor);

}  // namespace orbelle::editing
