#include "editing/tools/selection_start.h"

#include "editing/scene_mapping.h"

namespace orbelle::editing {

void MoveStartOntoPage(Editor& editor, const Pointer& pointer) {
    const SceneMapping mapping = MappingAtPress(editor);
    const document::Document& page = editor.Document;
    const double left = mapping.PageOffsetX, top = mapping.PageOffsetY;
    const double width = page.PageWidth * mapping.Zoom, height = page.PageHeight * mapping.Zoom;
    const auto onPage = [](float value, double first, double last, double beyond) {
        const double moved = value <= first ? first : value >= last ? beyond : value;
        return static_cast<float>(moved);
    };
    editor.MouseDownX = onPage(pointer.X, left, left + width, left + width);
    // Below the page it deliberately goes as far from the top as the page is wide.
    editor.MouseDownY = onPage(pointer.Y, top, top + height, top + width);
}

}  // namespace orbelle::editing
