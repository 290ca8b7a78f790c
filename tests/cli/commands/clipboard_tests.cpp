// Cut, copy, paste, delete, and a selection that the Move tool lifts off.
#include "rows.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

// A page of 8 x 8 with a layer of 4 x 3 at (1, 1): pixels 0xFF000000 + 16 y + x.
class ClipboardCommands : public RowsTest {
protected:
    ClipboardCommands() {
        graphics::Bitmap dots(4, 3);
        for (unsigned i = 0; i < 12; ++i)
            dots.SetPixel(i % 4, i / 4, 0xFF000000 + 16 * (i / 4) + i % 4);
        const Placed empty{FilledPicture(8, 8, 0), {}};
        WriteDocument("dots.volf", 8, 8, {empty, {dots, {1, 1, 4, 3}, 0.5F}});
        WriteDocument("wide.volf", 8, 8, {empty, {dots, {1, 1, 6, 3}}});
        WriteDocument("endless.volf", 8, 8, {empty, {dots, {0, 0, 4e6F, 3}}});
        graphics::Bitmap greys(4, 1);
        for (int x = 0; x < 4; ++x)
            greys.SetPixel(x, 0, 0xFF000000 | 0x10101U * (x == 3 ? 200U : 40U * (x + 1)));
        WriteDocument("greys.volf", 8, 8, {{greys, {0, 3, 8, 1}}});
        WriteDocument("large.volf", 8, 8, {{FilledPicture(10, 9, 0xFF204060), {-5, -5, 10, 9}}});
    }

    // The selection (2, 0) to (4, 2) of the page.
    const std::string select = "open dots.volf tool select-rectangle drag 2 0 3 1 ";
    const std::string selected = "argb 00000000 00000000 FF000001 FF000002, ";
    const std::string rest =
        "1/argb FF000000 00000000 00000000 FF000003 FF000010 FF000011 FF000012 FF000013 "
        "FF000020 FF000021 FF000022 FF000023, ";
};

TEST_F(ClipboardCommands, WithASelection) {
    Check(select, "",
          {{"copy takes the pixels alone", "copy",
            "clipboard/" + selected + "selection 2 0 2 2, 1@1,0 FF000001, undo 0"},
           {"paste brings them back to their place", "copy paste",
            "2/" + selected +
                "2/rect 2 0 2 2, 2/base_rect 2 0 2 2, 2/image 2 2, 2/opacity 0.5, "
                "2/region 1 1 2 1, selected 2, selection null, undo 1"},
           {"cut", "cut",
            "clipboard/" + selected + rest + "widths 84, 1/rect 1 1 4 3, selection null, undo 1"},
           {"delete", "delete", rest + "widths 84, page@2,1 00000000, clipboard/size 0 0, undo 1"},
           {"delete again", "delete delete", "widths 8, undo 2"},
           {"the key", "key delete", rest + "widths 84, undo 1"},
           {"the Move tool lifts it off in two steps", "tool move click 2 1",
            "2/" + selected + rest +
                "widths 842, selected 2, 2/rect 2 0 2 2, 2/base_rect 2 0 2 2, 2/image 2 2, "
                "2/opacity 0.5, 2/hue 0, 2/region 1 1 2 1, page@2,1 80000001, selection null, "
                "slider/opacity 50, undo 2"}});
    Check(select + "tool move click 2 1 ", "widths 842, undo 2, selected ",
          {{"beside the piece lies what it was lifted off", "click 3 3", "1"},
           {"the piece is picked by its own pixels", "click 3 3 click 2 1", "2"}});
    Check({
        {"a new empty layer hides neither", select + "tool move click 2 1 add-layer click 2 1",
         "widths 8428, selected 2, 3/region null"},
        {"out of the top layer when none is selected",
         "open dots.volf tool move click 7 7 tool select-rectangle drag 2 0 3 1 "
         "tool move click 2 1",
         "2/" + selected + rest + "widths 842"},
        {"cutting ends a scale", "open wide.volf tool select-rectangle drag 2 0 3 1 cut",
         "1/rect 1 1 4 3, 1/image 4 3"},
    });
    const std::string across = "open dots.volf tool select-rectangle drag 3 1 7 1 page 4 8 ";
    Check(across, "1@1,0 FF000001, 1@3,0 FF000003, ",
          {{"of a selection over the page's edge what lies on it is copied", "copy paste",
            "clipboard/argb FF000002, 2/argb FF000002, 2/rect 3 1 1 1, 1@2,0 FF000002, undo 2"},
           {"cut", "cut", "clipboard/argb FF000002, 1@2,0 00000000, undo 2"},
           {"and lifted off", "tool move click 0 7",
            "2/argb FF000002, 2/rect 3 1 1 1, 2/image 1 1, 1@2,0 00000000, undo 3"}});
    Check(across + "page 2 8 ", "widths 84, selection null, undo 2, clipboard/size 0 0, selected ",
          {{"off the page nothing is copied", "copy", "1"},
           {"nor cut", "cut", "1"},
           {"nor deleted", "delete", "1"},
           {"nor lifted off", "tool move click 0 7", "-1"}});
}

TEST_F(ClipboardCommands, WholeLayers) {
    Check("open dots.volf ", "",
          {{"cut and paste", "opacity 50 hue 0 saturation 40 contrast 80 cut paste",
            "widths 84, selected 1, 1/rect 1 1 4 3, 1/region 0 1 4 3, 1/contrast 80, "
            "slider/opacity 50, slider/contrast 80, undo 6"},
           {"cut takes the layer", "cut", "widths 8, undo 1, clipboard/size 4 3"},
           {"above the selected one", "copy select 0 paste", "widths 844, selected 1, undo 1"},
           {"on top when none is selected", "copy tool move click 7 7 paste",
            "widths 844, selected 2, slider/opacity 50"},
           {"copies are the layer's own", "copy tool pencil-eraser click 1 1 paste",
            "2@0,0 FF000000, 1@0,0 00000000"}});
    Check({
        // Greys drawn twice as wide: smoothly for other programs, as hard pixels here.
        {"a scaled layer is copied in the size of its place", "open greys.volf copy paste",
         "clipboard/size 8 1, clipboard/alphas@0,0 255 255 255 255 255 255 255 255, "
         "clipboard/reds@0,0~2 36 47 68 89 107 140 186 207, 0/image 4 1, "
         "1/argb FF282828 FF282828 FF505050 FF505050 FF787878 FF787878 FFC8C8C8 FFC8C8C8, "
         "1/rect 0 3 8 1, 1/image 8 1"},
        {"others are shown a page of a larger layer", "open large.volf copy paste",
         "clipboard/size 10 9, clipboard@7,7 FF204060, clipboard@8,7 00000000, "
         "clipboard@7,8 00000000, 1@9,8 FF204060"},
        {"a size no picture has", "open endless.volf copy",
         "clipboard/size 0 0, widths 84, undo 0"},
    });
}

}  // namespace
}  // namespace orbelle::cli
