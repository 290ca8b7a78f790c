// The verbs for the layer stack and the clipboard, from outside.
#include "cli/words.h"
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;
using ::testing::HasSubstr;
using testing::PictureOf;
using testing::SamePixels;

constexpr graphics::Argb kBlue = 0xFF204060;
constexpr graphics::Argb kRed = 0xFFC02040;

class StackVerbsTest : public ProgramTest {
protected:
    StackVerbsTest() {
        Write("blue.png", FilledPicture(4, 4, kBlue));
        Write("red.png", PictureOf({"##", "#.", "#."}, kRed));
    }

    // What the words leave in layer `layer`, red.png being imported over blue.png.
    graphics::Bitmap LayerAfter(std::vector<std::string> words, const std::string& layer) {
        words.insert(words.begin(), {"open", "blue.png", "import", "red.png"});
        words.insert(words.end(), {"write-layer", layer, "layer.png"});
        EXPECT_EQ(Run(words), kSuccess);
        return Picture("layer.png");
    }
};

TEST_F(StackVerbsTest, EachVerbRunsItsCommand) {
    const graphics::Bitmap blue = Picture("blue.png");
    const graphics::Bitmap red = Picture("red.png");
    EXPECT_TRUE(SamePixels(LayerAfter({"order", "back"}, "0"), red));
    EXPECT_TRUE(SamePixels(LayerAfter({"order", "backward"}, "0"), red));
    EXPECT_TRUE(SamePixels(LayerAfter({"select", "0", "order", "front"}, "1"), blue));
    EXPECT_TRUE(SamePixels(LayerAfter({"select", "0", "order", "forward"}, "1"), blue));
    EXPECT_TRUE(
        SamePixels(LayerAfter({"flip", "horizontal"}, "1"), PictureOf({"##", ".#", ".#"}, kRed)));
    EXPECT_TRUE(
        SamePixels(LayerAfter({"flip", "vertical"}, "1"), PictureOf({"#.", "#.", "##"}, kRed)));
    EXPECT_TRUE(SamePixels(LayerAfter({"rotate", "cw"}, "1"), PictureOf({"###", "..#"}, kRed)));
    EXPECT_TRUE(SamePixels(LayerAfter({"rotate", "cww"}, "1"), PictureOf({"###", "#.."}, kRed)));
    EXPECT_TRUE(SamePixels(LayerAfter({"select", "0", "delete"}, "0"), red));
    EXPECT_TRUE(SamePixels(LayerAfter({"cut", "paste"}, "1"), red));
    EXPECT_TRUE(SamePixels(LayerAfter({"copy", "select", "0", "delete", "paste"}, "1"), red));
    const graphics::Bitmap merged = LayerAfter({"merge"}, "0");
    EXPECT_EQ(merged.GetPixel(1, 0), kRed);  // centred: from (1, 0) on
    EXPECT_EQ(merged.GetPixel(2, 1), kBlue);
    EXPECT_EQ(merged.Width(), 4);
}

TEST_F(StackVerbsTest, ToggleVisibleHidesAndShowsWithoutAnUndoStep) {
    EXPECT_THAT(Run({"open", "red.png", "toggle-visible", "info"}).Output,
                AllOf(HasSubstr(R"("visible":false)"), HasSubstr(R"("modified":false)")));
    EXPECT_THAT(Run({"open", "red.png", "toggle-visible", "toggle-visible", "info"}).Output,
                HasSubstr(R"("visible":true)"));
}

TEST_F(StackVerbsTest, DisabledEntriesFailWithTheReason) {
    using TextList = std::vector<std::string>;
    const struct {
        TextList Before;
        TextList Verb;
        const char* Reason;
    } cases[] = {
        {{}, {"delete"}, "there is no document"},
        {{}, {"toggle-visible"}, "there is no document"},
        {{}, {"merge"}, "there is no document"},
        {{}, {"paste"}, "there is no document"},
        {{"new", "4", "4", "delete"}, {"copy"}, "no layer is selected"},
        {{"new", "4", "4", "delete"}, {"toggle-visible"}, "no layer is selected"},
        {{"new", "4", "4", "toggle-visible"}, {"cut"}, "the selected layer is hidden"},
        {{"new", "4", "4", "toggle-visible"}, {"merge"}, "the selected layer is hidden"},
        {{"new", "4", "4", "style", "ios"},
         {"flip", "vertical"},
         "the selected layer clips the one above it"},
        {{"new", "4", "4"}, {"paste"}, "the clipboard holds no picture"},
        {{"new", "4", "4"}, {"merge"}, "there is no layer below the selected one"},
        {{"new", "4", "4", "toggle-visible", "add-layer"},
         {"merge"},
         "the layer below the selected one is hidden"},
        {{"new", "4", "4"}, {"order", "back"}, "the selected layer is there already"},
        {{"new", "4", "4", "add-layer"},
         {"order", "forward"},
         "the selected layer is there already"},
        {{"new", "4", "4", "add-layer", "select", "0"},
         {"order", "backward"},
         "the selected layer is there already"},
    };
    for (const auto& [before, verb, reason] : cases) {
        TextList words = before;
        words.insert(words.end(), verb.begin(), verb.end());
        EXPECT_EQ(Run(words), Failed(JoinWords(verb) + ": " + reason));
    }
    EXPECT_EQ(Run({"order", "top"}),
              WrongUsage("order top: ORDER must be front or back or forward or backward"));
    EXPECT_EQ(Run({"rotate"}).Status, 2);
}

}  // namespace
}  // namespace orbelle::cli
