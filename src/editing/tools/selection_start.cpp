#include "editing/tools/selection_start.h"

#include <algorithm>

#include "editing/scene_mapping.h"

namespace orbelle::editing {

graphics::PointF StartOnPage(const Editor& editor, const Pointer& pointer) {
    const SceneMapping mapping = MappingAtPress(editor);
    const double left = mapping.PageOffsetX, top = mapping.PageOffsetY;
    const double width = editor.Page().Width * mapping.Zoom;
    const double height = editor.Page().Height * mapping.Zoom;
    const auto onPage = [](float value, double first, double last) {
        return static_cast<float>(std::max(first, std::min(double{value}, last)));
    };
    return {onPage(pointer.X, left, left + width), onPage(pointer.Y, top, top + height)};
}

}  // namespace orbelle::editing
