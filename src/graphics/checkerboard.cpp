#include "graphics/checkerboard.h"

#include <algorithm>
#include <vector>

namespace orbelle::graphics {

void DrawCheckerboard(Bitmap& target, const RectI& area, Argb first, Argb second) {
    const RectI shown = Intersect(area, {0, 0, target.Width(), target.Height()});
    // A row of cells and the one below it begin one cell apart in the same pattern.
    std::vector<Argb> pattern(static_cast<std::size_t>(shown.Width + kCheckerCell));
    for (int i = 0; i < shown.Width + kCheckerCell; ++i) {
        const int column = (shown.X - area.X + i) / kCheckerCell;
        pattern[static_cast<std::size_t>(i)] = column % 2 == 0 ? first : second;
    }
    for (int y = shown.Y; y < shown.Bottom(); ++y) {
        const int start = (y - area.Y) / kCheckerCell % 2 * kCheckerCell;
        std::copy_n(pattern.data() + start, shown.Width, target.MutableRow(y) + shown.X);
    }
}

}  // namespace orbelle::graphics
