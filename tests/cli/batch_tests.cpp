#include "cli/batch.h"

#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::ElementsAre;
using testing::FilledPicture;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using ::testing::ThrowsMessage;

constexpr graphics::Argb kBlue = 0xFF204060;

TEST(FillInTest, PartsOfThePathTakeTheirPlaces) {
    const auto filled = [](const std::string& file) {
        return FillIn({"{}", "{dir}/{stem}.ico", "{name}{x}{", "{}{}"}, file);
    };
    EXPECT_THAT(filled("a/b.c.png"),
                ElementsAre("a/b.c.png", "a/b.c.ico", "b.c.png{x}{", "a/b.c.pnga/b.c.png"));
    EXPECT_THAT(filled("{stem}"),
                ElementsAre("{stem}", "./{stem}.ico", "{stem}{x}{", "{stem}{stem}"));
    EXPECT_THAT(filled("/a"), ElementsAre("/a", "//a.ico", "a{x}{", "/a/a"));
    // What would be read as a verb, an option or a format.
    for (const std::string name : {"undo", "-", "-5", "png:a"})
        EXPECT_EQ(FillIn({"{}"}, name)[0], "./" + name);
}

class BatchTest : public ProgramTest {
protected:
    BatchTest() {
        for (int i = 1; i <= 12; ++i)
            Write(std::to_string(i) + ".png", FilledPicture(8 + i, 16, kBlue + 9000 * i));
        Write("bad.png", std::vector<std::uint8_t>{1, 2, 3});
    }

    // All that a run leaves and tells.
    std::string Account(const std::string& words) {
        const Outcome outcome = Run("--each " + words);
        std::string account = std::to_string(outcome.Status) + outcome.Output + outcome.Errors;
        for (int i = 1; i <= 12; ++i) {
            const std::string name = std::to_string(i) + ".volf";
            account += Exists(name) ? Text(name) : "none";
            std::filesystem::remove(folder / name);
        }
        return account;
    }
};

TEST_F(BatchTest, AnyNumberOfThreadsGivesTheSame) {
    const std::string verbs = " -- open {} style crystal info save {stem}.volf region 0";
    const std::string files = "--keep-going 3.png 1.png bad.png 12.png 7.png none.png 2.png";
    for (const char* option : {"", " --json"}) {
        const std::string words =
            std::string("9.png ") + files.substr(13) + " --keep-going" + option;
        const std::string one = Account(words + " --jobs 1" + verbs);
        for (const char* jobs : {" --jobs 4", "", " --jobs=100"})
            EXPECT_EQ(Account(words + jobs + verbs), one);
        EXPECT_THAT(one, HasSubstr("orbelle-cli: bad.png: open bad.png: not a PNG"));
        EXPECT_THAT(one, StartsWith("1{"));
    }
}

TEST_F(BatchTest, JsonTellsEachFileOnALine) {
    EXPECT_EQ(
        Run("--each 8.png bad.png --json --keep-going -- open {} export {stem}.bmp region 0 "
            "export {stem}.bmp"),
        (Outcome{
            1,
            R"({"file":"8.png","ok":true,"written":[{"path":"8.bmp","bytes":822}],"output":[)"
            R"("0 -1 15","1 -1 15","2 -1 15","3 -1 15","4 -1 15","5 -1 15","6 -1 15","7 -1 15",)"
            R"("8 -1 15","9 -1 15","10 -1 15","11 -1 15","12 -1 15","13 -1 15","14 -1 15","15 -1 15"]})"
            "\n"
            R"({"file":"bad.png","ok":false,"error":"open bad.png: not a PNG, JPEG, GIF, BMP, WebP or SVG picture","written":[],"output":[]})"
            "\n",
            "orbelle-cli: bad.png: open bad.png: not a PNG, JPEG, GIF, BMP, WebP or SVG "
            "picture\n"}));
    // What was written before a failure is told; files that were not begun are not.
    const Outcome failed =
        Run("--each 4.png 5.png --jobs 1 --json -- open {} export-set out-{stem} web select 9");
    EXPECT_THAT(
        failed.Output,
        AllOf(
            StartsWith(
                R"({"file":"4.png","ok":false,"error":"select 9: there is no layer 9; the document has 1","written":[{"path":"out-4/web/favicon.ico","bytes":)"),
            ::testing::Not(HasSubstr("5.png"))));
}

TEST_F(BatchTest, FilesThatGetInEachOthersWayAreRefused) {
    const std::pair<const char*, const char*> cases[] = {
        {"1.png 2.png -- open {} export all.ico", "1.png and 2.png would both write all.ico"},
        {"1.png ./1.png -- open {} save {stem}.volf", "1.png and ./1.png would both write 1.volf"},
        {"1.png 2.png -- open {} export-set out web",
         "1.png and 2.png would both write out/web/favicon.ico"},
        {"1.png 2.png -- open {} export png:-",
         "1.png and 2.png would both write to standard output"},
        {"1.png 2.png -- open -", "1.png and 2.png would both read standard input"},
        {"1.png 2.png -- open {} import 2.png export {}",
         "1.png would read 2.png, which 2.png writes"},
        {"1.png --json -- open {} export png:-",
         "--json and a file would both go to standard output"},
        {"1.png 2.png -- open {} select {stem} frobnicate", "frobnicate: unknown verb"},
        {"1.png open {}", "--each: \"--\" and verbs are missing after the files"},
        {"-- open {}", "--each: FILE is missing"},
        {"1.png --jobs 0 -- undo", "--jobs must be from 1 to 1024"},
        {"1.png - -- --script -", "standard input can be read once"},
    };
    for (const auto& [words, message] : cases)
        EXPECT_EQ(Run(std::string("--each ") + words), WrongUsage(message)) << words;
    EXPECT_EQ(Run("--json undo"), WrongUsage("--json goes with --each"));
    EXPECT_FALSE(Exists("all.ico") || Exists("1.volf") || Exists("out"));
    EXPECT_EQ(Run("--each 1.png 2.png -- open {} export-set out windows export {}"), kSuccess);
    EXPECT_TRUE(Exists("out/windows/1.ico") && Exists("out/windows/2.ico"));
}

TEST_F(BatchTest, NamesAndVerbsComeFromStandardInputAndScripts) {
    const std::string script = "open {}\nexport \"{stem} small.png\"\nselect {stem}\n";
    Write("s.txt", {script.begin(), script.end()});
    EXPECT_EQ(
        Run("--each - --keep-going -- --script s.txt", "1.png\n\n2.png"),
        Failed("1.png: s.txt:3: select 1: there is no layer 1; the document has 1\n"
               "orbelle-cli: 2.png: s.txt:3: select 2: there is no layer 2; the document has 1"));
    EXPECT_TRUE(Exists("1 small.png") && Exists("2 small.png"));
    EXPECT_EQ(Run("--each 3.png -- --script -", "open {}\nexport {stem}.gif"), kSuccess);
    EXPECT_EQ(Run("--each - -- open {}", ""), kSuccess);
    EXPECT_EQ(Run("--each 4.png -- open {} export bmp:-").Output.size(), 54u + 16 * 12 * 3);
}

}  // namespace
}  // namespace orbelle::cli
