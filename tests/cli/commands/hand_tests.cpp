// The Move tool, the selection tools and the keys.
#include "rows.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF336699;

class HandOnTheScene : public RowsTest {
protected:
    HandOnTheScene() {
        const Placed whole{FilledPicture(40, 30, 0xFF808080), {}};
        const auto gap = testing::PictureOf({"###..###", "###..###", "###..###", "###..###"});
        // Columns 10 to 12 and 15 to 17, from row 5 on.
        WriteDocument("two.volf", 40, 30, {whole, {gap, {10, 5, 8, 4}}});
        WriteDocument("hidden.volf", 40, 30, {whole, {gap, {10, 5, 8, 4}, 1, false}});
        Write("a.png", gap);
        graphics::Bitmap pair = FilledPicture(2, 1, 0xFF000000);
        pair.SetPixel(1, 0, 0x80FF0000);
        WriteDocument("pair.volf", 9, 9, {{pair, {}}});
        WriteDocument("none.volf", 40, 30, {{whole.Image, {}, 1, false}});
        WriteDocument("small.volf", 40, 30, {{FilledPicture(4, 3, kBlue), {10, 5, 4, 3}}});
        WriteDocument("half.volf", 20, 10, {{FilledPicture(20, 10, kBlue), {}, 0.5F}});
        WriteDocument("off.volf", 20, 10, {{FilledPicture(10, 6, kBlue), {2, 1, 10, 6}}});
    }
};

// A region lies one pixel to the left of its pixels: 9 to 11 and 14 to 16, and -1 to 38.
TEST_F(HandOnTheScene, PicksTheTopmostVisibleLayerByItsRegion) {
    const struct {
        const char* Places;
        const char* Selected;
    } cases[] = {{"9 5,11 8,14 6,16 6", "1"},
                 {"12 6,13 6,17 6,10 4,10 9,-1 6,38 29", "0"},
                 {"39 6,-2 6,10 30", "-1"}};
    for (const auto& [places, selected] : cases)
        for (const std::string& place : Split(places, ","))
            Check("open two.volf click ", "undo 0, selected ", {{"a pick", place, selected}});
    Check({
        {"hidden layers are not picked", "open hidden.volf click 10 6", "selected 0"},
        {"with none visible the selection stays", "open none.volf click 39 6", "selected 0"},
        {"nor an empty layer", "open two.volf add-layer click 10 6", "selected 1"},
        {"a pick shows the layer's sliders",
         "open two.volf select 0 opacity 25 hue 33 select 1 click 20 20",
         "slider/opacity 25, slider/hue 33, slider/scale 50"},
    });
}

TEST_F(HandOnTheScene, DragsAndKeysMoveALayer) {
    Check("open small.volf ", "0/rect ",
          {{"one step, the region comes along", "drag 11 6 14 8 16 9",
            "15 8 4 3, 0/region 14 8 4 3, page@15,8 FF336699, page@10,5 00000000, undo 1, "
            "modified true"},
           {"back to the start is no step", "drag 11 6 20 20 11 6", "10 5 4 3, undo 0"},
           {"zoomed", "zoom 20 drag 11 6 9 7", "8 6 4 3, 0/region 7 6 4 3"},
           {"nothing under the pointer", "drag 1 1 5 5", "10 5 4 3, selected -1, undo 0"},
           {"left", "key left key left", "8 5 4 3, 0/region 7 5 4 3, undo 2, page@8,5 FF336699"},
           {"right", "key right", "11 5 4 3, 0/region 10 5 4 3"},
           {"up", "key up key up undo", "10 4 4 3, 0/region 9 4 4 3, undo 1"},
           {"down", "zoom 20 key down", "10 6 4 3, 0/region 9 6 4 3"}});
    Check({
        {"a selection is lifted off and moved, in three steps",
         "open half.volf tool select-rectangle drag 3 2 7 5 tool move drag 5 4 7 5",
         "0/pixels 0-1: 0-19; 2-5: 0-2 8-19; 6-9: 0-19, 1/pixels 0-3: 0-4, 1/rect 5 3 5 4, "
         "1/opacity 0.5, 1/region 4 3 5 4, selected 1, slider/opacity 50, selection null, undo 3"},
        {"from where the layer lies",
         "open off.volf tool select-rectangle drag 0 3 7 4 tool move click 19 9",
         "0/pixels 0-1: 0-9; 2-3: 6-9; 4-5: 0-9, 1/pixels 0-1: 2-7, 1/rect 0 3 8 2, selected -1"},
    });
    Check("open two.volf ", "undo ",
          {{"delete", "key delete", "1, widths 40, page@10,5 FF808080"},
           {"delete where it is disabled", "toggle-visible key delete", "0, widths 408"},
           {"keys without a layer", "click 39 6 key left key delete", "0, modified false"},
           {"no selected layer",
            "click 39 6 tool pencil drag 1 1 4 4 tool brush-eraser click 3 3 "
            "tool filled-ellipse drag 1 1 4 4",
            "0"},
           {"no layers",
            "delete delete tool pencil drag 1 1 4 4 tool select-rectangle drag 1 1 4 4 "
            "tool brush-eraser drag 1 1 4 4 tool move drag 1 1 4 4",
            "2, selection null"},
           {"the other button is the menu's", "tool pencil right-click 1 1", "0, selected 1"}});
}

TEST_F(HandOnTheScene, NudgesALayerByHalfAPixel) {
    Check("open small.volf ", "0/rect ",
          {{"right", "nudge right",
            "10 5 5 3, 0/base_rect 10 5 5 3, 0/image 5 3, 0/region 9 5 5 3, undo 1, "
            "modified true, page@10,5 80336699, page@11,5 FF336699, page@14,7 80336699"},
           {"left", "nudge left", "9 5 5 3, page@9,5 80336699, page@10,5 FF336699"},
           {"up", "nudge up", "10 4 4 4, page@10,4 80336699, page@13,7 80336699"},
           {"down", "nudge down undo redo", "10 5 4 4, page@10,5 80336699, page@10,8 80336699"},
           {"there and back stays in place", "nudge right nudge left",
            "9 5 6 3, undo 2, 0/alphas@0,0 64 192 255 255 192 64"},
           {"hidden", "toggle-visible nudge down", "10 5 4 4, undo 1"},
           {"a selection stays", "tool select-rectangle drag 1 1 3 3 tool move nudge up",
            "10 4 4 4, selection/runs 1-3: 1-3"}});
    Check({
        {"colours weigh by alpha", "open pair.volf nudge right",
         "0/argb 80000000 C0550000 40FF0000"},
        {"no selected layer", "open two.volf click 39 6 nudge left",
         "error nudge left: no layer is selected, undo 0"},
    });
}

// Both corners included, whichever way the drag goes.
TEST_F(HandOnTheScene, Selects) {
    Check("new 40 30 tool select-rectangle ", "undo 0, selection/runs ",
          {{"to the lower right", "drag 5 4 9 8", "4-8: 5-9"},
           {"to the upper left", "drag 9 8 5 4", "4-8: 5-9"},
           {"to the upper right", "drag 5 8 9 4", "4-8: 5-9"},
           {"to the lower left", "drag 9 4 5 8", "4-8: 5-9"},
           {"beyond the left", "drag 5 4 -9 4", "4: 0-5"},
           {"from beyond", "drag -9 -9 2 1", "0-1: 0-2"},
           {"beyond the top", "drag 5 4 5 -9", "0-4: 5"},
           {"from beyond the right", "drag 70 4 30 5", "4-5: 30-39"},
           {"to the page's end", "drag 5 4 70 60", "4-29: 5-39"},
           {"from below", "drag 5 35 9 8", "8-29: 5-9"},
           {"zoomed", "zoom 4 drag 1 1 3 2", "1-2: 1-3"},
           {"again", "drag 5 4 9 8 drag 1 1 2 2", "1-2: 1-2"},
           {"united", "drag 5 4 9 8 shift-drag 10 4 12 8 shift-drag 20 10 22 12",
            "4-8: 5-12; 10-12: 20-22"},
           {"ended by a click, Shift or not", "drag 5 4 9 8 shift-click 7 7", "none"},
           {"an ellipse", "tool select-ellipse drag 1 1 10 8",
            "2: 3-9; 3-4: 2-10; 5: 1-10; 6-7: 2-10; 8: 3-9"},
           {"other tools end it", "drag 5 4 9 8 tool pencil", "none"},
           {"Move does not", "drag 5 4 9 8 tool move tool select-ellipse", "4-8: 5-9"}});
    Check("new 40 30 tool select-rectangle drag 0 0 3 3 tool select-polygon ", "selection/runs ",
          {{"a polygon in place of the selection",
            "click 5 5 click 15 5 click 15 12 right-click 30 20",
            "5: 5-14; 6: 7-14; 7: 8-14; 8: 10-14; 9: 11-14; 10: 13-14; 11: 14"},
           {"dragged", "drag 5 5 15 5 15 12 right-click 30 20",
            "5: 5-14; 6: 7-14; 7: 8-14; 8: 10-14; 9: 11-14; 10: 13-14; 11: 14"},
           {"and united",
            "shift-click 5 5 shift-click 8 5 shift-click 8 8 shift-click 5 8 right-click 1 1",
            "0-3: 0-3; 5-7: 5-7"},
           {"a polygon of one click", "click 5 5 right-click 1 1", ""},
           {"no polygon", "right-click 1 1", "0-3: 0-3"},
           {"a polygon left open",
            "shift-click 5 5 shift-click 8 8 tool select-rectangle right-click 1 1", "0-3: 0-3"}});
    Check(
        "new 40 30 tool select-rectangle ", "undo 0, modified false, selection/runs ",
        {{"all", "select-all", "0-29: 0-39"},
         {"all in place of some", "drag 5 4 9 8 select-all", "0-29: 0-39"},
         {"all with a drawing tool", "tool pencil select-all", "0-29: 0-39"},
         {"none", "drag 5 4 9 8 deselect", "none"},
         {"the others", "drag 1 1 38 28 invert-selection", "0: 0-39; 1-28: 0 39; 29: 0-39"},
         {"the others of the others", "drag 1 2 3 4 invert-selection invert-selection", "2-4: 1-3"},
         {"and more", "drag 0 1 39 29 invert-selection shift-drag 0 3 0 4", "0: 0-39; 3-4: 0"},
         {"all others of all are none", "select-all invert-selection", "none"},
         {"of shapes that cover all", "drag 0 0 39 9 shift-drag 0 10 39 29 invert-selection",
          "none"},
         // A circle one pixel wide has none.
         {"of none at all", "tool select-ellipse drag 5 5 5 9 invert-selection", "0-29: 0-39"},
         {"an open polygon goes",
          "tool select-polygon click 1 1 click 9 9 select-all right-click 3 3", "0-29: 0-39"}});
    for (const char* command :
         {"toggle-visible", "add-layer", "paste", "delete", "cut", "style ios", "import a.png"})
        Check("open two.volf copy tool select-rectangle drag 5 4 9 8 ", "selection null",
              {{"ended by a command", command, ""}});
}

}  // namespace
}  // namespace orbelle::cli
