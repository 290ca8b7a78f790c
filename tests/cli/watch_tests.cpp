#include "cli/watch.h"

#include "watch_fixture.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;
using testing::FilledPicture;

TEST_F(WatchTest, WhatChangesIsDoneAgain) {
    WriteScript("open {}\nexport {stem}.bmp\n");
    Start("--each a.png b.png --keep-going --json --depfile x.d -- --script icon.txt");
    ASSERT_TRUE(Prints(2));
    Write("b.png", FilledPicture(9, 9, kBlue));
    ASSERT_TRUE(Prints(3));
    EXPECT_EQ(Picture("b.bmp").Width(), 9);
    fs::remove(folder / "a.png");
    ASSERT_TRUE(Prints(4));
    EXPECT_TRUE(Tells("a.png: icon.txt:1: open a.png: No such file or directory", 1));
    WriteScript("open {}\nflip\n");
    ASSERT_TRUE(Tells("icon.txt:2: flip: DIRECTION is missing", 2));
    fs::remove(folder / "x.d");
    Write("a.png", FilledPicture(10, 10, kBlue));
    WriteScript("open {}\nflip vertical\nimport c.png\nexport {stem}.gif\n");
    ASSERT_TRUE(Prints(6));
    EXPECT_FALSE(Exists("x.d"));
    Write("c.png", FilledPicture(11, 11, kBlue));
    ASSERT_TRUE(Prints(8));
    EXPECT_EQ(FilesTold(), "abbaabab");
    ASSERT_TRUE(Comes([this] { return Exists("x.d"); }));
    EXPECT_EQ(Text("x.d"), "a.gif: a.png c.png icon.txt\nb.gif: b.png c.png icon.txt\n");
}

TEST_F(WatchTest, ItsOwnWritingIsNoChange) {
    fs::create_directory(folder / "to");
    fs::create_hard_link(folder / "b.png", folder / "to/b.png");
    ChangeWhatIsWrittenInto("to");
}

TEST_F(WatchTest, AChangeDuringARunIsNotMissed) {
    Start("open a.png info compress small export-size 512 export big.png");
    for (int run = 1; run < 4; ++run) {
        ASSERT_TRUE(Prints(run));
        Write("a.png", FilledPicture(8, 8, kBlue + 9000 * run));
    }
    ASSERT_TRUE(Prints(4));
    const graphics::Argb color = kBlue + 9000 * 3;
    EXPECT_TRUE(
        Comes([&] { return Exists("big.png") && Picture("big.png").GetPixel(250, 250) == color; }));
}

TEST_F(WatchTest, WhatCantBeReadAgainIsWrongUsage) {
    const std::pair<const char*, const char*> cases[] = {
        {"open - export x.ico", "--watch: standard input can't be read again"},
        {"--each a.png -- import - export x.ico", "--watch: standard input can't be read again"},
        {"--script -", "--watch: the script - can't be read again"},
        {"--script none.txt", "none.txt: No such file or directory"},
        {"new 8 8 export x.ico", "--watch: no verb reads a file"},
        {"open a.png flip", "flip: DIRECTION is missing"},
    };
    for (const auto& [words, message] : cases)
        EXPECT_EQ(Run(std::string("--watch ") + words), WrongUsage(message)) << words;
    EXPECT_FALSE(Exists("x.ico"));
}

}  // namespace
}  // namespace orbelle::cli
