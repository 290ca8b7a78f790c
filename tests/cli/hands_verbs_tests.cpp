// Tools, pointer and keys from the command line.
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::HasSubstr;

class HandsVerbsTest : public ProgramTest {
protected:
    // What a script of one verb a line prints, after `new 8 8`.
    std::string Printed(const std::string& script) {
        const Outcome outcome = Run({"--script", "-"}, "new 8 8\n" + script);
        EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
        return outcome.Output;
    }

    graphics::Bitmap LayerAfter(const std::string& script) {
        Printed(script + "\nwrite-layer 0 layer.png");
        return graphics::LoadImageFromFile(folder / "layer.png");
    }
};

TEST_F(HandsVerbsTest, ToolsDrawWithTheColourInUse) {
    // The region lies one pixel to the left of the pixels.
    EXPECT_EQ(Printed("tool pencil\nforeground #FF0000\nclick 3 4\nregion 0"), "4 2 3\n");
    EXPECT_EQ(LayerAfter("tool pencil\nforeground #FF0000\nbackground-colour #8000FF00\n"
                         "active background\nclick 1 1\nswap\nclick 2 1\n")
                  .GetPixel(1, 1),
              0x8000FF00);
    // The square of the longer side grows to the right and down from one pixel up and left.
    EXPECT_EQ(Printed("tool filled-rectangle\nforeground #FF0000\nshift-drag 2 2 3 5\nregion 0"),
              "1 0 5\n2 0 5\n3 0 5\n4 0 5\n5 0 5\n");
    const graphics::Bitmap line = LayerAfter(
        "tool line\nline-width 3\nfill horizontal\nforeground #FF0000\nbackground-colour #0000FF\n"
        "drag 1 3 7 3");
    EXPECT_EQ(line.GetPixel(1, 3), 0x80D5002B);  // a flat cap; a sixth of the way
    EXPECT_EQ(line.GetPixel(6, 2), line.GetPixel(6, 4));
}

TEST_F(HandsVerbsTest, PointersMapByTheZoomOfTheRun) {
    const std::string click = "tool pencil\nforeground #FF0000\n";
    EXPECT_EQ(Printed(click + "zoom 20\nclick 7 0\nregion 0"), "0 6 7\n");
    EXPECT_EQ(Printed(click + "zoom 0.5\nclick 7 0\nregion 0"), "0 6 7\n");
    EXPECT_EQ(Printed(click + "click -1 3\nclick 8 3\nregion 0"), "");
}

TEST_F(HandsVerbsTest, SelectionsArePrintedAsRunsAndBounds) {
    EXPECT_EQ(Printed("selection"), "");
    EXPECT_EQ(Printed("tool select-rectangle\ndrag 1 2 3 3\nselection"), "2 1 4\n3 1 4\n");
    EXPECT_THAT(Printed("tool select-rectangle\ndrag 1 2 3 3\nshift-drag 6 6 7 7\ninfo"),
                HasSubstr("\"selection\":[1,2,7,6]"));
    EXPECT_EQ(Printed("tool select-rectangle\ndrag 1 2 3 3\nshift-click 5 5\nselection"), "");
    EXPECT_EQ(Printed("tool select-polygon\nclick 1 1\nclick 5 1\nclick 1 5\nright-click 0 0\n"
                      "selection"),
              "1 1 5\n2 1 4\n3 1 3\n4 1 2\n");
}

TEST_F(HandsVerbsTest, MoveDragsAndKeysNudgeTheLayer) {
    const std::string plate = "tool filled-rectangle\nforeground #FF0000\ndrag 3 3 4 4\n";
    // Shape, then drag of an eight pixel layer by (2, 1), one step up, one to the left.
    EXPECT_THAT(Printed(plate + "tool move\ndrag 3 3 5 4\nkey up\nkey left\ninfo"),
                HasSubstr("\"selected\":0,\"undo\":4,\"redo\":0,\"selection\":null,"
                          "\"layers\":[{\"rect\":[1,0,8,8]"));
    EXPECT_THAT(Printed(plate + "key delete\ninfo"), HasSubstr("\"layers\":[]"));
    EXPECT_THAT(Printed(plate + "tool move\nclick 7 7\nkey up\ninfo"),
                HasSubstr("\"selected\":-1,\"undo\":1"));
}

TEST_F(HandsVerbsTest, ErasersAndPickWorkOnPixels) {
    const std::string plate = "tool filled-rectangle\nforeground #80102030\ndrag 1 1 6 6\n";
    const graphics::Bitmap picked =
        LayerAfter(plate + "tool pick\nclick 3 3\ntool pencil\nclick 7 7\n");
    EXPECT_EQ(picked.GetPixel(7, 7), 0x80102030);
    EXPECT_EQ(LayerAfter(plate + "tool pencil-eraser\ndrag 2 2 3 2").GetPixel(3, 2), 0x00102030);
    // Size 1 reaches two pixels; at full strength 250 of alpha go in the middle.
    const graphics::Bitmap erased =
        LayerAfter(plate + "brush-size 1\nbrush-opacity 100\ntool brush-eraser\nclick 3 3");
    EXPECT_EQ(erased.GetPixel(3, 3), 0x00102030);
    EXPECT_EQ(erased.GetPixel(4, 3), 0x03102030);
    EXPECT_EQ(erased.GetPixel(5, 3), 0x80102030);
}

TEST_F(HandsVerbsTest, FailuresAndWrongUsageSayWhy) {
    EXPECT_EQ(Run({"tool", "pencil"}), Failed("tool pencil: there is no document"));
    EXPECT_EQ(Run({"click", "1", "1"}), Failed("click 1 1: there is no document"));
    EXPECT_EQ(Run({"new", "8", "8", "tool", "pencil", "line-width", "3"}),
              Failed("line-width 3: the tool in use has no line width"));
    EXPECT_EQ(Run({"drag", "1", "1"}), WrongUsage("drag 1 1: X is missing"));
    EXPECT_EQ(Run({"drag", "1", "1", "2", "2", "3", "undo"}),
              WrongUsage("drag 1 1 2 2 3 undo: Y must be a whole number"));
    EXPECT_EQ(Run({"brush-size", "101"}), WrongUsage("brush-size 101: N must be from 1 to 100"));
    EXPECT_EQ(Run({"key", "enter"}),
              WrongUsage("key enter: KEY must be left or right or up or down or delete"));
}

TEST_F(HandsVerbsTest, TheSampleDrawsAnIcon) {
    EXPECT_EQ(Run({"--script", ORBELLE_SAMPLES "/speech-bubble.txt"}), kSuccess);
    const Outcome info = Run({"open", "speech-bubble.volf", "info"});
    EXPECT_THAT(info.Output, HasSubstr("\"page\":{\"width\":256,\"height\":256"));
    EXPECT_EQ(Run({"open", "speech-bubble.ico", "write-page", "page.png"}), kSuccess);
    const graphics::Bitmap page = graphics::LoadImageFromFile(folder / "page.png");
    ASSERT_EQ(page.Width(), 256);
    EXPECT_EQ(graphics::AlphaOf(*page.GetPixel(129, 109)), 255);  // the dot in the middle
    EXPECT_EQ(graphics::AlphaOf(*page.GetPixel(66, 230)), 255);   // the tail
    EXPECT_EQ(graphics::AlphaOf(*page.GetPixel(30, 230)), 0);     // cut away beside it
}

}  // namespace
}  // namespace orbelle::cli
