// Files that come by standard input and go to standard output, and names that tell the format.
#include "cli/plan.h"
#include "cli/script.h"
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;
using ::testing::HasSubstr;

constexpr graphics::Argb kBlue = 0xFF204060;

TEST_F(ProgramTest, FilesComeAndGoByPipes) {
    Write("a.png", FilledPicture(40, 40, kBlue));
    ASSERT_EQ(Run("open a.png export a.ico save a.volf write-page page.png combine c.ico a.png"),
              kSuccess);
    for (const auto& [words, same] : {std::pair{"open - export ico:- <a.png", "a.ico"},
                                      {"open - export ico:- <a.volf", "a.ico"},
                                      {"open png:a.png save -", "a.volf"},
                                      {"import - write-page - <a.png", "page.png"},
                                      {"combine - - <a.png", "c.ico"}}) {
        EXPECT_EQ(Run(std::string(words) + " >out"), kSuccess) << words;
        EXPECT_EQ(Bytes("out"), Bytes(same)) << words;
    }
    EXPECT_EQ(Run("open a.png export gif:a.png open a.png export gif:-").Output.substr(0, 4),
              "GIF8");

    EXPECT_THAT(Run("open - info <a.png").Output, HasSubstr(R"("path":"","modified":false)"));
    EXPECT_EQ(Run("open - export-set . macos info <a.volf >out"), kSuccess);
    EXPECT_TRUE(Exists("macos/icon.icns"));
}

TEST_F(ProgramTest, PipesThatFailAreNamed) {
    EXPECT_EQ(Run("open -", ""), Failed("open -: not a PNG, JPEG, GIF, BMP, WebP or SVG picture"));
    EXPECT_EQ(Run("open png:none.bmp"), Failed("open png:none.bmp: No such file or directory"));
    EXPECT_EQ(Run("--script -", "open -"),
              WrongUsage("-:1: open -: standard input can be read once"));
}

TEST(PlanTest, StandardInputAndOutputAreUsedOnce) {
    const std::pair<const char*, const char*> cases[] = {
        {"open - import -", "import -: standard input can be read once"},
        {"combine - - -", "combine - - -: standard input can be read once"},
        {"new 8 8 export png:- save -", "save -: something else goes to standard output"},
        {"new 8 8 info export png:-", "export png:-: something else goes to standard output"},
        {"new 8 8 save - region 0", "region 0: a file goes to standard output"},
        {"new 8 8 export -", "export -: the format is missing, as in png:-"},
        {"new 8 8 export volf:a.png",
         "export volf:a.png: PATH: no volf is written here, but ico, cur, icns, png, gif, jpg, "
         "bmp"},
        {"new 8 8 save png:a", "save png:a: PATH: no png is written here, but volf"},
        {"new 8 8 export png:", "export png:: PATH must be the name of a file"},
    };
    for (const auto& usage : cases)
        EXPECT_THAT([&] { PlanRun(ParseCalls(SplitLine(usage.first))); },
                    ::testing::ThrowsMessage<UsageError>(usage.second));
}

TEST(PlanTest, AllFilesAreKnownBeforehand) {
    const Plan plan = PlanRun(ParseCalls(
        SplitLine("open a/x.png import b.png export ico:c save d.volf export-set e windows new 8 8 "
                  "export-set e macos combine f.ico g.png entries f.ico write-page ./png:h")));
    EXPECT_THAT(plan.Reads, ::testing::ElementsAre("a/x.png", "b.png", "g.png", "f.ico"));
    EXPECT_THAT(plan.Writes, ::testing::ElementsAre("c", "d.volf", "e/windows/d.ico",
                                                    "e/macos/icon.icns", "f.ico", "./png:h"));
}

}  // namespace
}  // namespace orbelle::cli
