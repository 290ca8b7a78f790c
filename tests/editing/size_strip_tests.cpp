// What the strip of sizes shows, and the commands that it has beside those of a page.
#include "editing/size_strip.h"

#include "editing/size_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using document::Family;
using ::testing::ElementsAre;
using testing::FilledPicture;
using testing::PictureOf;
using testing::SamePixels;

class SizeStripTest : public EditingTest {
protected:
    void OpenIcon(const graphics::Bitmap& picture) {
        Do([&](Editor& e) { OpenPicture(e, picture); });
    }
    std::string FailureOf(const Command& command) {
        return editing::Run(editor, command).Problem();
    }
};

TEST_F(SizeStripTest, HasTheExportsSizesThoseWithArtworkAndTheUsualOnes) {
    OpenPage(130, 40);
    EXPECT_THAT(StripSizes(editor), ElementsAre(128, 64, 48, 32, 24, 16));
    OpenPage(20, 20);
    EXPECT_THAT(StripSizes(editor), ElementsAre(64, 48, 32, 24, 16));
    Do(EditSize, 96);
    Do(EditSize, 24);
    EXPECT_THAT(StripSizes(editor), ElementsAre(96, 64, 48, 32, 24, 16)) << "each once";
    editor.ExportSettings.IconSizes = {{20, 256}};
    EXPECT_THAT(StripSizes(editor), ElementsAre(256, 96, 64, 48, 32, 24, 20, 16));
}

TEST_F(SizeStripTest, LeavesOutTheLargestThatDoNotFit) {
    const auto fit = [](std::vector<int> sizes, int edited, int sideAtMost, int room) {
        return SizesThatFit(std::move(sizes), edited, sideAtMost, room,
                            [](int size) { return size + 10; });
    };
    const std::vector<int> all{256, 128, 96, 64, 48, 32, 24, 16, 8};
    // 266 + 138 + 106 + 74 + 58 + 42 + 34 + 26 + 18.
    EXPECT_EQ(fit(all, 0, 256, 762), all);
    EXPECT_THAT(fit(all, 0, 256, 761), ElementsAre(128, 96, 64, 48, 32, 24, 16, 8));
    EXPECT_THAT(fit(all, 0, 127, 762), ElementsAre(96, 64, 48, 32, 24, 16, 8));
    EXPECT_THAT(fit(all, 0, 256, 251), ElementsAre(64, 48, 32, 24, 16)) << "8 is not in the way";
    EXPECT_THAT(fit(all, 128, 60, 0), ElementsAre(128, 64, 48, 32, 24, 16));
}

TEST_F(SizeStripTest, ACopyOfASizeIsShrunkAsAnExportOrEnlargedHard) {
    const graphics::Bitmap dots = PictureOf({"#.#.#.#.", ".#.#.#.#", "########", "#......#",
                                             "#.####.#", "#.#..#.#", "#.####.#", "########"});
    OpenIcon(FilledPicture(64, 64, 0xFF00FF00));
    Do(EditSize, 8);
    PutOnlyLayer(dots, 0, 0);
    Do(CopyToSize, 8, 20);
    EXPECT_EQ(editor.Document.EditedSize, 20);
    EXPECT_EQ(editor.States.UndoName, "Copy to Size");
    // Pixel x shows x * 8 / 20: by turns three and two wide.
    EXPECT_EQ(testing::AlphaRow(editor.Canvas, 0),
              (std::vector<int>{255, 255, 255, 0, 0, 255, 255, 255, 0, 0,
                                255, 255, 255, 0, 0, 255, 255, 255, 0, 0}));
    Do(CopyToSize, 20, 10);
    EXPECT_EQ(Layer(0).Rect, (graphics::RectF{0, 0, 10, 10}));
    EXPECT_EQ(editor.Page().LayerCount(), 1);

    // A size without artwork gives what it exports, whatever page is in force.
    Do(CopyToSize, 48, 16);
    EXPECT_TRUE(SamePixels(editor.Canvas, FilledPicture(16, 16, 0xFF00FF00)));
    Do(CopyToSize, 8, 16);
    EXPECT_EQ(*editor.Canvas.GetPixel(3, 1), 0) << "in place of what there was";
    Do(Undo);
    EXPECT_EQ(*editor.Canvas.GetPixel(3, 1), 0xFF00FF00);
    EXPECT_EQ(FailureOf([](Editor& e) { CopyToSize(e, 16, 16); }),
              "a size can't be copied to itself");
    EXPECT_EQ(FailureOf([](Editor& e) { CopyToSize(e, 16, 257); }),
              "artwork of its own has a size of 8 to 256");
    EXPECT_EQ(editor.History.RedoCount(), 1) << "what failed was no step";
}

TEST_F(SizeStripTest, TheTitleAndTheNeighboursFollowThePageInForce) {
    const auto enabled = [&] {
        std::string signs;
        for (const CommandId id : {CommandId::PreviousSize, CommandId::NextSize, CommandId::Master})
            signs += editor.States.IsEnabled(id) ? '+' : '-';
        return signs;
    };
    OpenPage(64, 64);
    EXPECT_EQ(enabled(), "---");
    Do(EditSize, 16);
    Do(EditSize, 48);
    EXPECT_EQ(editor.Title, "Varnel Orbelle - Project * - 48 x 48");
    EXPECT_EQ(enabled(), "+++");
    Do(GoToNextPage);
    EXPECT_EQ(editor.Document.EditedSize, 16);
    EXPECT_EQ(enabled(), "+-+");
    Do(GoToNextPage);
    EXPECT_EQ(editor.Document.EditedSize, 16);
    Do(GoToPreviousPage);
    Do(GoToPreviousPage);
    EXPECT_EQ(editor.Document.EditedSize, Family::kMaster);
    EXPECT_EQ(enabled(), "-+-");
    Do(GoToPreviousPage);
    EXPECT_EQ(editor.Title, "Varnel Orbelle - Project *");
    Do(Undo);
    EXPECT_EQ(editor.Title, "Varnel Orbelle - Project * - 16 x 16") << "before 48 was made";
    Do(NewDocument, 8, 8);
    EXPECT_EQ(editor.Title, "Varnel Orbelle - Project *");
}

}  // namespace
}  // namespace orbelle::editing
