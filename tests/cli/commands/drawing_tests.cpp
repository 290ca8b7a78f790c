// The drawing tools, the colours, the erasers.
#include "rows.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF336699;

class DrawingTools : public RowsTest {
protected:
    DrawingTools() {
        Write("blue.png", FilledPicture(80, 60, kBlue));
        Write("odd.png", FilledPicture(40, 10, kBlue));
        WriteDocument("spot.volf", 40, 30, {{FilledPicture(10, 10, 0), {7, 3, 10, 10}, 1, false}});
        WriteDocument("row.volf", 40, 30, {{FilledPicture(10, 1, kBlue), {20, 10, 10, 1}}});
    }

    const std::string open = "new 40 30 foreground #336699 background-colour #C08040 tool ";
};

// A box is one pixel larger, up and to the left, than the drag.
TEST_F(DrawingTools, HardEdges) {
    Check(open, "undo 1, 0/pixels ",
          {{"a click", "filled-rectangle click 10 5", "4-5: 9-10"},
           {"a drag back", "filled-rectangle drag 13 7 10 5", "4-7: 9-13"},
           {"a square", "filled-rectangle shift-drag 10 5 13 7", "4-8: 9-13"},
           {"a square back", "filled-rectangle shift-drag 13 7 10 5", "4-8: 9-13"},
           {"a square up", "filled-rectangle shift-drag 10 7 13 5", "4-8: 9-13"},
           {"a high square", "filled-rectangle shift-drag 13 5 12 8", "4-8: 11-15"},
           {"beyond the edge", "filled-rectangle drag 38 28 50 50", "27-29: 37-39"},
           {"an outline", "rectangle drag 10 5 13 7", "4: 9-13; 5-6: 9 13; 7: 9-13"},
           {"wide", "rectangle line-width 3 drag 14 9 10 5",
            "3-5: 8-15; 6-7: 8-10 13-15; 8-10: 8-15"},
           {"the pencil takes no width", "line line-width 9 tool pencil click 20 17", "17: 20"},
           {"one move", "pencil drag 2 2 8 2", "2: 2-8"},
           {"freehand", "pencil drag 1 1 2 2 8 2 8 4", "1: 1; 2: 2-8; 3-4: 8"},
           {"resting moves are dropped", "pencil drag 2 2 5 2 5 2 6 2", "2: 2-6"},
           {"a line without extent", "line click 5 5", ""},
           {"beside the page", "pencil click -1 3", ""},
           // A linear gradient without extent draws nothing.
           {"no width", "filled-rectangle fill horizontal drag 10 5 10 9", ""},
           {"no width", "line fill horizontal drag 10 5 10 9", ""},
           {"no height", "rectangle fill vertical drag 10 5 15 5", ""},
           {"a radial one does", "filled-rectangle fill radial drag 10 5 15 5", "4-5: 9-15"},
           {"all round", "rectangle fill radial drag 18 18 10 10",
            "9: 9-18; 10-17: 9 18; 18: 9-18"}});
}

// Size 10 takes 250 x (1 - distance / 15) of the alpha.
TEST_F(DrawingTools, BeginWithBlackAndWhiteAndABrushOfTen) {
    const std::string square = "tool filled-rectangle drag 2 2 4 4";
    Check({{"black", "new 9 9 " + square, "page@3,3 FF000000"},
           {"white", "new 9 9 active background " + square, "page@3,3 FFFFFFFF"},
           {"the brush", "open blue.png tool brush-eraser click 10 10",
            "0/alphas@10,10~0 5, 0/alphas@13,10~0 55"}});
}

TEST_F(DrawingTools, SmoothEdges) {
    Check(open + "line ", "",
          {{"a line", "drag 10 5 14 7",
            "0/alphas@9,5~12 0 119 143 25 0, 0/alphas@9,6~12 0 25 143 237 143 25 0, "
            "0/alphas@11,7~12 0 25 143 119 0"},
           {"two wide, Shift means nothing", "line-width 2 shift-drag 2 4 8 4",
            "0/alphas@1,3~12 0 64 128 128 128 128 128 64 0, "
            "0/alphas@1,4~12 0 128 255 255 255 255 255 128 0, "
            "0/alphas@1,5~12 0 64 128 128 128 128 128 64 0"}});
    // The first one's box is (1, 1, 4, 4).
    Check(open + "filled-ellipse ", "",
          {{"an ellipse", "drag 2 2 4 4",
            "0/alphas@1,1~12 0 54 122 54 0, 0/alphas@1,2~12 54 251 255 251 54, "
            "0/alphas@1,3~12 122 255 255 255 122"},
           {"its outline", "tool ellipse drag 2 2 5 5",
            "0/alphas@1,1~12 35 196 251 196 35, 0/alphas@1,2~12 196 116 7 116 196, "
            "0/alphas@1,3~12 251 7 0 7 251"},
           {"an ellipse is wide or high", "drag 10 10 20 12",
            "0/alphas@9,9~12 0 0 8 58 98 120 127, 0/alphas@9,11~12 110 255 255"},
           {"a smooth circle", "shift-drag 2 2 4 3",
            "0/alphas@1,1~12 0 54 122 54 0, 0/alphas@1,4~12 54 251 255 251 54"}});
}

// From black to a red of 200, over the drag's length from one pixel before the press on, and back.
TEST_F(DrawingTools, Gradients) {
    Check(
        "new 40 30 foreground #000000 background-colour #C80000 active background tool ", "0/reds",
        {{"across", "filled-rectangle fill horizontal drag 10 5 14 7",
          "@9,4~2 0 50 100 150 200 150"},
         {"back", "filled-rectangle fill horizontal drag 14 7 10 5", "@9,4~2 200 150 100 50 0 50"},
         {"down", "filled-rectangle fill vertical drag 10 5 14 7", "|9,4~2 0 100 200 100 -1 -1"},
         {"up", "filled-rectangle fill vertical drag 14 7 10 5", "|9,4~2 200 100 0 100 -1 -1"},
         {"outline", "rectangle fill horizontal drag 10 5 14 7", "@9,4~2 0 50 100 150 200 150"},
         {"a line", "line line-width 3 fill horizontal drag 9 4 13 4", "@10,4~2 100 150 200"},
         {"a line down", "line line-width 3 fill vertical drag 9 4 9 8", "|9,5~2 100 150 200"},
         // The shape's box is (9, 9, 10, 10) and its middle (14, 14), whichever way it is dragged.
         {"from the middle", "filled-ellipse fill radial drag 10 10 18 18",
          "@9,14~3 200 160 120 80 40 0 40 80 120 160 200, "
          "0/reds|14,9~3 200 160 120 80 40 0 40 80 120 160 200"},
         {"and back", "filled-ellipse fill radial drag 18 18 10 10",
          "@9,14~3 200 160 120 80 40 0 40 80 120 160 200"},
         {"of a rectangle", "filled-rectangle fill radial drag 18 10 10 18",
          "@9,14~3 200 160 120 80 40 0 40 80 120 160 -1, 0/reds@9,9~3 200 200 200 200"},
         {"the outline lies half beyond", "ellipse line-width 4 fill radial drag 10 10 18 18",
          "@7,14~3 200 200 200 160"},
         {"of a line", "line line-width 3 fill radial drag 17 4 9 4",
          "@9,4~3 160 120 80 40 0 40 80 120 160"},
         {"the pencil has none", "pencil fill vertical click 3 3", "@3,3 200"}});
}

TEST_F(DrawingTools, ColoursAndPlaces) {
    Check({
        {"the colour in use with its alpha",
         "new 9 9 tool filled-rectangle background-colour #80445566 active background click 5 5",
         "0@4,4 80445566"},
        {"a joint is no darker",
         "new 40 30 tool pencil foreground #80445566 drag 20 5 20 6 25 5 25 9", "0@25,5 80445566"},
        {"swapped colours keep the well",
         "new 8 8 tool pencil foreground #FF0000 background-colour #8000FF00 active background "
         "click 1 1 swap click 2 1",
         "0@1,1 8000FF00, 0@2,1 FFFF0000, slider/colour-opacity 100"},
    });
    const std::string spot = "tool filled-rectangle drag 9 5 ";
    Check("open spot.volf foreground #336699 ", "0/pixels ",
          {{"the region stands at the page's corner", spot + "11 6",
            "1-3: 1-4, 0/region 0 1 4 3, 0/rect 7 3 10 10"},
           {"at half the zoom", "zoom 0.5 " + spot + "11 6", "1-3: 1-4"},
           {"and three times", "zoom 3 " + spot + "35 28", "1-9: 1-9"}});
}

TEST_F(DrawingTools, Erasers) {
    Check({
        {"a pixel for each event", "open odd.png tool pencil-eraser drag 3 4 6 4 -1 4 9 7",
         "0/alphas@2,4 255 0 255 255 0 255, 0/alphas@8,7 255 0 255, 0@3,4 00336699, "
         "0/alphas@9,4 255, page@3,4 00000000, undo 1, 0/region -1 0 40 10"},
        {"in the layer's pixels",
         "open row.volf zoom 3 tool pencil-eraser click 20 10 click 21 10 click 24 10",
         "0/alphas@0,0 0 0 255 255 0 255, 0/region 19 10 10 1, undo 3"},
    });
    // Alpha 255 less (1 - d / R) x L, with R of 1.5 x size, halves to even, and L of
    // 5 x (opacity \ 2).
    Check("open blue.png tool brush-eraser brush-size ", "0/alphas@10,10 ",
          {{"R 3, L 250", "2 brush-opacity 100 click 10 10",
            "5 88 172 255, 0/alphas@11,11 123, 0/alphas@10,8 172"},
           {"R 4, L 250", "3 brush-opacity 100 click 10 10", "5 68 130 192 255, 0/alphas@11,11 93"},
           {"R 2, L 100", "1 brush-opacity 41 click 10 10", "155 205 255, 0/alphas@11,11 226"},
           {"L 0", "9 brush-opacity 1 click 10 10", "255 255"}});
    // Stamps lie more than twenty scene pixels apart, whatever the zoom.
    Check("open blue.png tool brush-eraser brush-opacity 100 brush-size 1 ", "undo 1, 0/alphas@",
          {{"20", "drag 40 30 60 30", "40,30 5, 0/alphas@60,30 255"},
           {"21", "drag 40 30 61 30", "40,30 5, 0/alphas@61,30 5"},
           {"across", "drag 40 30 54 44", "54,44 255"},
           {"farther", "drag 40 30 55 15", "55,15 5"},
           {"20 at zoom 5", "zoom 5 drag 40 30 44 30", "44,30 255"},
           {"25 at zoom 5", "zoom 5 drag 40 30 40 35", "40,35 5"},
           {"counted from the last stamp", "drag 2 5 14 5 24 5 44 5 46 5 60 5",
            "2,5 5, 0/alphas@14,5 255, 0/alphas@24,5 5, 0/alphas@44,5 255, 0/alphas@46,5 5, "
            "0/alphas@60,5 255, 0/region -1 0 80 60"}});
}

// Page pixel x is mirrored to 39 - x, y to 29 - y.
TEST_F(DrawingTools, MirrorDrawing) {
    Check(open, "undo 1, 0/pixels ",
          {{"left and right", "pencil mirror horizontal drag 2 2 8 2", "2: 2-8 31-37"},
           {"top and bottom", "pencil mirror vertical drag 2 2 8 2", "2: 2-8; 27: 2-8"},
           {"both", "pencil mirror both drag 2 2 8 2", "2: 2-8 31-37; 27: 2-8 31-37"},
           {"neither", "pencil mirror both mirror none drag 2 2 8 2", "2: 2-8"},
           {"a box", "filled-rectangle mirror horizontal drag 13 7 10 5", "4-7: 9-13 26-30"},
           {"a square's side", "rectangle mirror horizontal shift-drag 10 7 13 5",
            "4: 9-13 26-30; 5-7: 9 13 26 30; 8: 9-13 26-30"},
           {"from beside the page", "filled-rectangle mirror horizontal drag 41 1 38 1",
            "0-1: 0-2 37-39"}});
    Check(open, "undo 1, 0/",
          {{"soft edges", "line mirror horizontal drag 10 5 14 7",
            "alphas@9,5~12 0 119 143 25 0, 0/alphas@26,5~12 0 25 143 119 0"},
           {"a gradient",
            "filled-rectangle mirror horizontal foreground #000000 background-colour #C80000 "
            "fill horizontal drag 10 5 14 7",
            "reds@9,4~2 0 50 100 150 200 150, 0/reds@25,4~2 150 200 150 100 50 0"},
           {"no darker where it meets itself",
            "filled-rectangle mirror both foreground #80336699 drag 18 14 22 16",
            "pixels 13-16: 17-22, 0@20,14 80336699"},
           {"undone", "pencil mirror both click 2 2 undo redo", "pixels 2: 2 37; 27: 2 37"}});
    // The layer's pixels are the page's less (7, 3). Drawn beside it, mirrored onto it.
    Check(
        "open spot.volf ", "0/pixels ",
        {{"another place", "tool filled-rectangle mirror horizontal drag 31 5 33 6", "1-3: 0-2"}});
    Check({
        {"the pencil eraser", "open odd.png mirror both tool pencil-eraser click 3 4",
         "0/alphas@2,4 255 0 255, 0/alphas@35,5 255 0 255, 0/alphas@35,4 255 0 255, "
         "0/alphas@2,5 255 0 255, 0/alphas@3,6 255, undo 1"},
        // R 2, L 100, as below.
        {"the brush eraser, once where it meets itself",
         "open blue.png mirror horizontal tool brush-eraser brush-size 1 brush-opacity 41 "
         "click 10 10 click 39 30",
         "0/alphas@9,10 205 155 205, 0/alphas@68,10 205 155 205, 0/alphas@37,30 255 205 155 155 "
         "205 255"},
    });
}

}  // namespace
}  // namespace orbelle::cli
