// Which of an icon's sizes the strip "Sizes" shows.
#pragma once

#include <functional>
#include <vector>

#include "editing/editor_state.h"

namespace orbelle::editing {

// Whatever the page and the room: the sizes that most icons are seen at.
inline constexpr int kAlwaysShownSizes[] = {64, 48, 32, 24, 16};

// Those, what an icon's export would hold, and all that have artwork of their own; largest first.
std::vector<int> StripSizes(const EditorState& editor);

// What is left of `sizes`, largest first, when those that do not fit are left out: larger ones than
// `sideAtMost`, then the largest until the widths of the others add up to no more than `room`.
// Never what is always shown nor the size that is edited.
std::vector<int> SizesThatFit(std::vector<int> sizes, int editedSize, int sideAtMost, int room,
                              const std::function<int(int)>& widthOf);

}  // namespace orbelle::editing
