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
        WriteDocument("none.volf", 40, 30, {{whole.Image, {}, 1, false}});
        WriteDocument("small.volf", 40, 30, {{FilledPicture(4, 3, kBlue), {10, 5, 4, 3}}});
        WriteDocument("half.volf", 20, 10, {{FilledPicture(20, 10, kBlue), {}, 0.5F}});
        WriteDocument("off.volf", 20, 10, {{FilledPicture(10, 6, kBlue), {2, 1, 10, 6}}});
        WriteDocument("big.volf", 40, 30, {{FilledPicture(30, 25, kBlue), {5, 4, 30, 25}}});
    }
};

// A region lies one pixel to the left of its pixels: 9 to 11 and 14 to 16, and -1 to 38.
TEST_F(HandOnTheScene, PicksTheTopmostVisibleLayerByItsRegion) {
    const struct {
        const char* Place;
        int Selected;
    } cases[] = {{"9 5", 1},   {"11 8", 1},  {"12 6", 0},  {"13 6", 0},  {"14 6", 1},
                 {"16 6", 1},  {"17 6", 0},  {"10 4", 0},  {"10 9", 0},  {"-1 6", 0},
                 {"38 29", 0}, {"39 6", -1}, {"-2 6", -1}, {"10 30", -1}};
    for (const auto& [place, selected] : cases)
        Check({"a click picks", std::string("open two.volf click ") + place,
               "undo 0, selected " + std::to_string(selected)});
    Check({
        {"hidden layers are not picked", "open hidden.volf click 10 6", "selected 0"},
        {"with none visible the selection stays", "open none.volf click 39 6", "selected 0"},
        {"a pick shows the layer's sliders",
         "open two.volf select 0 opacity 25 hue 33 select 1 click 20 20",
         "slider/opacity 25, slider/hue 33, slider/scale 50"},
    });
}

TEST_F(HandOnTheScene, DragsAndKeysMoveALayer) {
    Check({
        {"one step, the region comes along", "open small.volf drag 11 6 14 8 16 9",
         "0/rect 15 8 4 3, 0/region 14 8 4 3, page@15,8 FF336699, page@10,5 00000000, undo 1, "
         "modified true"},
        {"back to the start is no step", "open small.volf drag 11 6 20 20 11 6",
         "0/rect 10 5 4 3, undo 0"},
        {"zoomed", "open small.volf zoom 20 drag 11 6 9 7", "0/rect 8 6 4 3, 0/region 7 6 4 3"},
        {"small", "open big.volf zoom 0.2 drag 15 15 20 15", "0/rect 10 4 30 25"},
        {"nothing under the pointer", "open small.volf drag 1 1 5 5",
         "0/rect 10 5 4 3, selected -1, undo 0"},
        {"a selection is lifted off and moved, in three steps",
         "open half.volf tool select-rectangle drag 3 2 7 5 tool move drag 5 4 7 5",
         "0/pixels 0-1: 0-19; 2-5: 0-2 8-19; 6-9: 0-19, 1/pixels 0-3: 0-4, 1/rect 5 3 5 4, "
         "1/opacity 0.5, 1/region 4 3 5 4, selected 1, slider/opacity 50, selection null, undo 3"},
        {"from where the layer lies",
         "open off.volf tool select-rectangle drag 0 3 7 4 tool move click 19 9",
         "0/pixels 0-1: 0-9; 2-3: 6-9; 4-5: 0-9, 1/pixels 0-1: 2-7, 1/rect 0 3 8 2, selected -1"},
        {"left", "open small.volf key left key left",
         "0/rect 8 5 4 3, 0/region 7 5 4 3, undo 2, page@8,5 FF336699"},
        {"right", "open small.volf key right", "0/rect 11 5 4 3, 0/region 10 5 4 3"},
        {"up", "open small.volf key up key up undo", "0/rect 10 4 4 3, 0/region 9 4 4 3, undo 1"},
        {"down", "open small.volf zoom 20 key down", "0/rect 10 6 4 3, 0/region 9 6 4 3"},
        {"delete", "open two.volf key delete", "layers 1, undo 1, page@10,5 FF808080"},
        {"delete where it is disabled", "open two.volf toggle-visible key delete",
         "layers 2, undo 0"},
        {"keys without a layer", "open two.volf click 39 6 key left key delete",
         "layers 2, undo 0, modified false"},
        {"no layers, no tool",
         "new 8 8 delete tool pencil drag 1 1 4 4 tool select-rectangle "
         "drag 1 1 4 4 tool brush-eraser drag 1 1 4 4 tool move drag 1 1 4 4",
         "layers 0, undo 1, selection null"},
        {"no selected layer",
         "open two.volf click 39 6 tool pencil drag 1 1 4 4 tool "
         "brush-eraser click 3 3 tool filled-ellipse drag 1 1 4 4",
         "undo 0"},
        {"the other button is the menu's", "open two.volf tool pencil right-click 1 1",
         "undo 0, selected 1"},
    });
}

// The end of a drag has 1 added: a drag to the left or up begins one pixel further, and leaves out
// the pixel of the press.
TEST_F(HandOnTheScene, Selects) {
    const struct {
        const char *Behaviour, *Hand, *Runs;
    } cases[] = {
        {"to the lower right", "drag 5 4 9 8", "4-8: 5-9"},
        {"to the upper left", "drag 9 8 5 4", "5-7: 6-8"},
        {"to the upper right", "drag 5 8 9 4", "5-7: 5-9"},
        {"to the lower left", "drag 9 4 5 8", "4-8: 6-8"},
        {"beyond the left", "drag 5 4 -9 4", "4: 1-4"},
        {"from beyond", "drag -9 -9 2 1", "0-1: 0-2"},
        {"from beyond the right: column 40", "drag 70 4 30 5", "4-5: 31-39"},
        {"to the page's end", "drag 5 4 70 60", "4-29: 5-39"},
        // Below the page a press begins as far from its top as the page is wide.
        {"from below", "drag 5 35 9 8", "9-39: 5-9"},
        {"zoomed", "zoom 4 drag 1 1 3 2", "1-2: 1-3"},
        {"small", "zoom 0.5 drag 2 2 6 8", "2-8: 2-6"},
        {"again", "drag 5 4 9 8 drag 1 1 2 2", "1-2: 1-2"},
        {"united", "drag 5 4 9 8 shift-drag 10 4 12 8 shift-drag 20 10 22 12",
         "4-8: 5-12; 10-12: 20-22"},
        {"ended by a click", "drag 5 4 9 8 click 7 7", "none"},
        {"with Shift, too", "drag 5 4 9 8 shift-click 7 7", "none"},
        {"an ellipse", "tool select-ellipse drag 1 1 10 8",
         "2: 3-9; 3-4: 2-10; 5: 1-10; 6-7: 2-10; 8: 3-9"},
        {"a polygon", "tool select-polygon click 5 5 click 15 5 click 15 12 right-click 30 20",
         "5: 5-14; 6: 7-14; 7: 8-14; 8: 10-14; 9: 11-14; 10: 13-14; 11: 14"},
        {"in place of the selection",
         "drag 0 0 3 3 tool select-polygon click 5 5 click 8 5 "
         "click 8 8 click 5 8 right-click 1 1",
         "5-7: 5-7"},
        {"and united",
         "drag 0 0 3 3 tool select-polygon shift-click 5 5 shift-click 8 5 "
         "shift-click 8 8 shift-click 5 8 right-click 1 1",
         "0-3: 0-3; 5-7: 5-7"},
        {"a polygon of one click", "drag 0 0 3 3 tool select-polygon click 5 5 right-click 1 1",
         ""},
        {"no polygon", "drag 0 0 3 3 tool select-polygon right-click 1 1", "0-3: 0-3"},
        {"a polygon left open",
         "drag 0 0 3 3 tool select-polygon shift-click 5 5 shift-click 8 8 "
         "tool select-rectangle right-click 1 1",
         "0-3: 0-3"},
        {"other tools end it", "drag 5 4 9 8 tool pencil", "none"},
        {"Move does not", "drag 5 4 9 8 tool move tool select-ellipse", "4-8: 5-9"},
    };
    for (const auto& [behaviour, hand, runs] : cases)
        Check({behaviour, std::string("new 40 30 tool select-rectangle ") + hand,
               std::string("undo 0, selection/runs ") + runs});
    for (const char* command :
         {"toggle-visible", "add-layer", "paste", "delete", "cut", "style ios", "import a.png"})
        Check({"ended by a command",
               "open two.volf copy tool select-rectangle drag 5 4 9 8 " + std::string(command),
               "selection null"});
}

}  // namespace
}  // namespace orbelle::cli
