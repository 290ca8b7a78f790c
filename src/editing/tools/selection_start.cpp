#include "editing/tools/selection_start.h"

#include "editing/scene_mapping.h"

namespace orbelle::editing {

graphics::PointF StartOnPage(const Editor& editor, const Pointer& pointer) {
    const SceneMapping mapping = MappingOf(editor);
    const double left = mapping.PageOffsetX, top = mapping.PageOffsetY;
    const double width = editor.Page().Width * mapping.Zoom;
    const double height = editor.Page().Height * mapping.Zoom;
    const auto onPage = [](float value, double first, double last, double beyond) {
        const double moved = value <= first ? first : value >= last ? beyond : value;
        return static_cast<float>(moved);
    };
    // Below the page it goes as far from the top as the page is wide
    // (docs/oddities.md, "Presses below the page").
    return {onPage(pointer.X, left, left + width, left + width),
            onPage(pointer.Y, top, top + height, top + width)};
}

}  // namespace orbelle::editing
