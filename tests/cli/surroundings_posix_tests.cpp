// The program among full devices, pipes that nobody reads, names that are no text, and signals.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "shell_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr graphics::Argb kBlue = 0xFF204060;

using SurroundingsTest = ShellTest;

TEST_F(SurroundingsTest, OutputThatCantBeWrittenIsAFailure) {
    constexpr int kBroken = 9;
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(dup2(ends[1], kBroken), kBroken);
    for (const int end : ends)
        close(end);
    for (const char* words : {"--help", "--version", "new 8 8 info", "new 8 8 region 0 info"}) {
        const std::string verb = words[0] == '-' ? "" : "info: ";
        EXPECT_EQ(Run(std::string(words) + " >/dev/full"),
                  Failed(verb + "standard output: No space left on device"));
        EXPECT_EQ(ShellRun(std::string(words) + " >&9"),
                  Failed(verb + "standard output: Broken pipe"));
        EXPECT_EQ(ShellRun(std::string(words) + " >&-"),
                  Failed(verb + "standard output: Bad file descriptor"));
    }
    close(kBroken);
    EXPECT_EQ(ShellRun("--script - <&-"), WrongUsage("-: can't be read"));
    EXPECT_EQ(ShellRun("new 8 8 export a.bmp undo 2>&- >&-").Status, 1);
    EXPECT_EQ(Bytes("a.bmp").size(), 54u + 8 * 8 * 3);
}

TEST_F(SurroundingsTest, PipesAndDevicesAreWrittenTo) {
    Write("a.png", FilledPicture(300, 300, kBlue));
    ASSERT_EQ(Run("open a.png export b.png save b.volf export b.bmp"), kSuccess);
    EXPECT_EQ(Shell("mkfifo f.png f.volf f.bmp; cat f.png >c.png & cat f.volf >c.volf & "
                    "\"$cli\" open a.png export f.png save f.volf && wait"),
              kSuccess);
    EXPECT_EQ(Bytes("c.png"), Bytes("b.png"));
    EXPECT_EQ(Bytes("c.volf"), Bytes("b.volf"));
    EXPECT_EQ(ShellRun("open a.png save /dev/stdout info | cat >c.volf"), kSuccess);
    EXPECT_THAT(Text("c.volf"), StartsWith(Text("b.volf") + "{\"size\":"));
    EXPECT_EQ(Run("open a.png save /dev/stdout >c.volf"), kSuccess);
    EXPECT_EQ(Bytes("c.volf"), Bytes("b.volf"));

    EXPECT_EQ(Shell("cat a.png | \"$cli\" open - save - | cat >c.volf"), kSuccess);
    EXPECT_EQ(Bytes("c.volf"), Bytes("b.volf"));
    // What stands in the output already stays.
    EXPECT_EQ(Shell("{ printf before; \"$cli\" open a.png export bmp:-; } >c.bmp"), kSuccess);
    EXPECT_THAT(Text("c.bmp"), StartsWith("beforeBM"));

    // A reader that has seen enough; one that never comes.
    EXPECT_EQ(Shell("head -c 1 f.bmp >c.bmp & \"$cli\" open a.png export f.bmp"),
              Failed("export f.bmp: Broken pipe"));
    EXPECT_EQ(Run("new 8 8 export png:- >/dev/full"),
              Failed("export png:-: standard output: No space left on device"));
    EXPECT_EQ(Run("new 8 8 save /dev/full"), Failed("save /dev/full: No space left on device"));
    EXPECT_EQ(Shell("\"$cli\" open a.png export f.bmp & sleep 0.2; kill $!; wait $!").Status,
              128 + SIGTERM);
    EXPECT_EQ(Shell("ulimit -f 1; \"$cli\" open a.png export b.bmp >/dev/null"),
              Failed("export b.bmp: File too large"));
    EXPECT_EQ(Bytes("b.bmp").size(), 54u + 300 * 300 * 3);
}

TEST_F(SurroundingsTest, NamesNeedNotBeText) {
    Write("caf\xE9.png", FilledPicture(16, 16, kBlue));
    EXPECT_EQ(Run("open 'caf\xE9.png' save '\xFF.volf' open '\xFF.volf' import 'caf\xE9.png' "
                  "export '\xFE\n.ico' write-page '\xC3.png'"),
              kSuccess);
    EXPECT_TRUE(Exists("\xFE\n.ico") && Exists("\xC3.png"));
    EXPECT_EQ(Run("open '\xFD.png'"), Failed("open \xFD.png: No such file or directory"));
    EXPECT_THAT(Run("open '\xFF.volf' info").Output, HasSubstr("\"path\":\"\xEF\xBF\xBD.volf\""));
    EXPECT_EQ(Run("--script '\xFD'", ""), WrongUsage("\xFD: No such file or directory"));
    EXPECT_EQ(Run("--script -", "open \xFF.volf\nexport \xFC.png"), kSuccess);
    EXPECT_TRUE(Exists("\xFC.png"));
}

TEST_F(SurroundingsTest, AnInterruptLeavesNothingUnfinished) {
    Write("12.png", FilledPicture(20, 16, kBlue));
    std::string names;
    for (int i = 0; i < 400; ++i) {
        std::filesystem::copy_file(folder / "12.png", folder / ("in" + std::to_string(i) + ".png"));
        names += "in" + std::to_string(i) + ".png\n";
    }
    const std::string verbs = " -- open {} compress small export-size 512 export o/{stem}.png";
    EXPECT_EQ(
        Shell("mkdir o; timeout --preserve-status -s INT 0.4 \"$cli\" --each -" + verbs, names)
            .Status,
        128 + SIGINT);
    for (const auto& file : std::filesystem::directory_iterator(folder / "o"))
        EXPECT_EQ(Picture(file.path().string()).Height(), 410);
}

}  // namespace
}  // namespace orbelle::cli
