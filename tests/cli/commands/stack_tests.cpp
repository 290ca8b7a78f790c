// The order of the layers, flips and turns, deleting, hiding, merging; what is disabled.
#include "rows.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060, kGold = 0xFFC0A010;

class StackCommands : public RowsTest {
protected:
    StackCommands() {
        std::vector<Placed> four;  // their widths and opacities tell them apart
        for (int i = 1; i <= 4; ++i)
            four.push_back({FilledPicture(i, 1, kBlue), {}, static_cast<float>(i) / 10});
        WriteDocument("four.volf", 8, 8, four);
        graphics::Bitmap abc(3, 2);  // abc / def, with c transparent
        for (unsigned i = 0; i < 6; ++i)
            abc.SetPixel(i % 3, i / 3, i == 2 ? 0x0000000C : 0xFF00000A + i);
        WriteDocument("abc.volf", 32, 32, {{abc, {10, 20, 3, 2}}});
        WriteDocument("scaled.volf", 32, 32,
                      {{abc.CloneArea(0, 0, 2, 1), {0.25F, 0.25F, 5.5F, 3}}});
        WriteDocument("square.volf", 32, 32, {{FilledPicture(2, 2, kBlue), {4.5F, 4, 2, 2}}});
        // One pixel drawn as 2 x 3, partly above the page, over a square.
        WriteDocument("merge.volf", 8, 8,
                      {{FilledPicture(8, 8, 0), {}},
                       {FilledPicture(2, 2, kBlue), {1, 1, 2, 2}, 0.5F},
                       {FilledPicture(1, 1, kGold), {2, -1, 2, 3}, 0.5F}});
        WriteDocument(
            "far.volf", 8, 8,
            {{FilledPicture(1, 1, kBlue), {}}, {FilledPicture(2, 1, kBlue), {4e6F, 0, 2, 1}}});
        Write("red.png", testing::PictureOf({"##", "#.", "#."}, 0xFFC02040));
    }
};

TEST_F(StackCommands, OrderFlipAndTurn) {
    Check("open four.volf ", "undo 1, ",
          {{"to the front", "select 1 order front", "widths 1342, selected 3"},
           {"to the back", "select 2 order back", "widths 3124, selected 0"},
           {"one back", "select 2 order backward", "widths 1324, selected 1"},
           {"one forward", "select 1 order forward", "widths 1324, selected 2, slider/opacity 20"},
           {"a step after undo forgets what lay ahead", "order back undo select 1 order backward",
            "widths 2134, redo 0"}});
    Check("open abc.volf ", "undo 1, 0/rect 10 20 3 2, 0/image 3 2, ",
          {{"flip", "flip horizontal",
            "0/argb 0000000C FF00000B FF00000A FF00000F FF00000E FF00000D, "
            "0/runs 20: 10-11; 21: 9-11"},
           {"flip over", "flip vertical",
            "0/argb FF00000D FF00000E FF00000F FF00000A FF00000B 0000000C, "
            "0/runs 20: 9-11; 21: 9-10"}});
    // Around the middle of (10, 20, 3, 2): 10 + 0.5 and 20 - 0.5, fractions dropped downwards.
    Check("open abc.volf ", "0/rect 10 19 2 3, 0/base_rect 10 19 2 3, 0/image 2 3, 0/size 2 3, ",
          {{"turn", "rotate cw",
            "0/argb FF00000D FF00000A FF00000E FF00000B FF00000F 0000000C, undo 1, "
            "0/runs 19-20: 9-10; 21: 9, page@11,19 FF00000A, page@10,21 FF00000F"},
           {"turn and mirror", "rotate cww",
            "0/argb FF00000A FF00000D FF00000B FF00000E 0000000C FF00000F, "
            "0/runs 19-20: 9-10; 21: 10"},
           {"whole after what follows", "rotate cw contrast 50",
            "page@11,19 FF00000A, page@10,21 FF00000F"},
           {"copied as the page shows it", "rotate cw copy",
            "clipboard/argb FF00000D FF00000A FF00000E FF00000B FF00000F 00000000"},
           {"cut where the page shows it", "rotate cw tool select-rectangle drag 10 20 11 21 cut",
            "clipboard/argb FF00000E FF00000B FF00000F 00000000, 0/pixels 0: 0-1"}});
    // Turned: d a, e b, f c.
    Check("open abc.volf rotate cw ", "clipboard/",
          {{"half off the page", "page 11 21 select-all cut",
            "pixels 19-20: 10, clipboard@10,20 FF00000E, "
            "0/argb 00000000 FF00000A 00000000 FF00000B FF00000F 00000000"},
           {"flipped", "flip horizontal page 11 21 select-all cut",
            "pixels 19-20: 10, clipboard@10,20 FF00000B, "
            "0/argb 00000000 FF00000D 00000000 FF00000E 00000000 FF00000F"},
           {"off the upper left", "tool move drag 10 19 -1 -1 select-all cut",
            "pixels 0: 0, clipboard@0,0 FF00000B, 0/rect -1 -1 2 3, "
            "0/argb FF00000D FF00000A FF00000E 00000000 FF00000F 00000000"},
           {"all but a part", "tool select-rectangle drag 11 19 11 20 invert-selection cut",
            "pixels 19-21: 10, 0/argb 00000000 FF00000A 00000000 FF00000B 00000000 00000000"}});
    Check({{"turned back", "open abc.volf rotate cw rotate cw", "0/rect 9 19 3 2, 0/image 3 2"},
           {"in another size", "open scaled.volf rotate cw",
            "0/rect 1 -1 3 5.5, 0/image 1 2, 0/argb FF00000A FF00000B"},
           {"a square stays where it is", "open square.volf key left rotate cw",
            "0/rect 3.5 4 2 2, 0/base_rect 4.5 4 2 2"}});
}

TEST_F(StackCommands, DeleteHideAndMerge) {
    Check("open four.volf select 1 hue 33 select 0 hue 9 ", "",
          {{"the layer below is next", "select 2 delete",
            "widths 124, selected 1, undo 3, slider/opacity 20, slider/hue 33"},
           {"below the lowest is the one above", "delete",
            "widths 234, selected 0, undo 3, slider/opacity 20, slider/hue 33"},
           {"undo shows the sliders again", "select 2 delete undo",
            "widths 1234, selected 2, slider/opacity 30, slider/hue 0"}});
    Check(
        {{"no layer is left", "new 8 8 delete", "widths , selected -1, undo 1, page@0,0 00000000"},
         {"and comes back", "new 8 8 delete undo", "widths 8, selected 0, undo 0, redo 1"},
         {"hidden without an undo step", "open four.volf toggle-visible",
          "3/visible false, undo 0, modified false, page@3,0 00000000"},
         {"shown again", "open four.volf toggle-visible toggle-visible", "page@3,0 66204060"},
         // Alpha 0.5 x 255 rounds to 128; both at once: R = 255 x 128 + 128 x 127 = 48896, which is
         // 192 x 255, and red is (255 x 128 x 192 + 128 x 127 x 32) / R = 139.
         {"both layers in the box of both, in two steps",
          "open merge.volf select 1 hue 100 select 2 merge",
          "widths 83, selected 1, 1/rect 1 -1 3 4, 1/base_rect 1 -1 3 4, 1/image 3 4, 1/opacity 1, "
          "1/scale 0, 1/hue 0, slider/opacity 100, undo 3, 1/region 0 -1 2 4, "
          "1/argb 00000000 80C0A010 80C0A010 00000000 80C0A010 80C0A010 "
          "80204060 C08B802B 80C0A010 80204060 80204060 00000000"},
         {"a hidden layer below is seen again",
          "open merge.volf select 1 toggle-visible select 2 merge", "1/visible true, undo 2"},
         {"a layer merged with an empty one can be picked",
          "new 4 4 import red.png merge tool move click 0 0", "selected 0, 0/runs 0: 0-1; 1-2: 0"},
         {"too far apart", "open far.volf merge",
          "error merge: The two layers are too far apart to become one picture., widths 12, undo "
          "0"}});
}

TEST_F(StackCommands, DisabledEntriesFailWithTheReason) {
    const struct {
        std::string Reason, Before, Verbs;
    } cases[] = {
        {"there is no document", "",
         "save a.volf,export a.png,page 8 8,select 0,background none,add-layer,opacity 5,"
         "style crystal,info,region 0,selection,write-page a,write-scene a,write-layer 0 a,"
         "tool pencil,click 1 1,key left,delete,toggle-visible,merge,paste,hue 3,select-all,"
         "deselect,invert-selection"},
        {"the document has no layer", "new 4 4 delete", "save a.volf,export a.png"},
        {"no layer is selected", "new 4 4 delete", "copy"},
        {"the selected layer is hidden", "new 4 4 toggle-visible", "cut,merge,style fresh"},
        {"the selected layer clips the one above it", "new 4 4 style ios", "flip vertical"},
        {"the clipboard holds no picture", "new 4 4", "paste"},
        {"nothing is selected", "new 4 4 select-all deselect", "deselect,invert-selection"},
        {"there is no layer below the selected one", "new 4 4", "merge"},
        {"the selected layer is there already", "new 4 4 add-layer", "order front,order forward"},
        {"the selected layer is there already", "new 4 4", "order back,order backward"},
        {"there is nothing to undo", "new 4 4", "undo"},
        {"there is nothing to redo", "new 4 4 add-layer", "redo"},
        {"there is no layer 1; the document has 1", "new 4 4", "select 1"},
        {"the tool in use has no line width", "new 4 4 tool pencil", "line-width 3"}};
    for (const auto& [reason, before, verbs] : cases)
        for (const std::string& verb : Split(verbs, ","))
            Check({{"disabled", before + " " + verb, "error " + verb + ": " + reason}});
}

}  // namespace
}  // namespace orbelle::cli
