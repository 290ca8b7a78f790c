// Page size and page background.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// A drag of a page-size slider is a press, any number of changes and a release. It is one undo
// step, taken at the release, or none when the page has its old size again; given up, it leaves the
// old size. Values are brought into the slider's range. Layers keep their place. The press throws
// document::HistoryLimit when no step fits; nothing happens between that and the next press.
void PressPageSize(Editor& editor);
void ChangePageWidth(Editor& editor, int value);
void ChangePageHeight(Editor& editor, int value);
void ReleasePageSize(Editor& editor);

// Gives that drag up.
void TakeBackPageSize(Editor& editor, const PageSizeDrag& drag);

// A drag of either slider straight to the value: a step for each side that changes. Throws Error
// for the artwork of a size, which keeps its size.
void SetPageSize(Editor& editor, int width, int height);

// The sliders take the size of the page in force.
void ShowSizeOfPage(Editor& editor);

// What shows the page's size follows it after Undo or Redo; a selection keeps what lies on the
// page.
void FollowPageSize(Editor& editor);

// One undo step, none when the page has that background already. 0: transparent.
void SetPageBackground(Editor& editor, graphics::Argb color);

}  // namespace orbelle::editing
