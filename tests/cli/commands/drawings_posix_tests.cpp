// SVG documents are drawn in the size that is told.
#include "graphics/file_io.h"
#include "rows.h"

namespace orbelle::cli {
namespace {

TEST_F(RowsTest, DrawingsComeInTheSizeThatIsTold) {
    const std::string_view drawing =
        "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'>"
        "<rect width='8' height='4' fill='#204060'/></svg>";
    graphics::WriteFile("d.svg",
                        {reinterpret_cast<const std::uint8_t*>(drawing.data()), drawing.size()});
    Check({
        {"a drawing", "open d.svg", "page/width 512, page/height 256, page@0,0 FF204060"},
        {"a drawing of a size", "svg-size 20 open d.svg import d.svg",
         "page/width 20, page/height 10, widths 2020, undo 1, page@19,9 FF204060"},
        {"of another", "svg-size 20 open d.svg svg-size 6 import-fit d.svg",
         "1/rect 7 3 6 3, undo 1"},
    });
}

}  // namespace
}  // namespace orbelle::cli
