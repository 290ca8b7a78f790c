// Names of files that are not ASCII, on every way into the program and out of it.
#include "formats/journal_file.h"
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::HasSubstr;

class NamesTest : public ProgramTest {
protected:
    NamesTest() {
        Write("büro.png", testing::FilledPicture(16, 16, 0xFF204060));
        std::filesystem::create_directory(folder / "Ордер");
    }
};

TEST_F(NamesTest, WordsAndWhatIsTold) {
    EXPECT_THAT(Run("open büro.png save 'Ордер/büro ✓.volf' info").Output,
                HasSubstr(R"("path":"Ордер/büro ✓.volf")"));
    EXPECT_EQ(Run("open 'Ордер/büro ✓.volf' import png:büro.png write-page 中.png"), kSuccess);
    EXPECT_EQ(Picture("中.png").Width(), 16);
    EXPECT_EQ(Run("open 'fehlt ✓.png'"), Failed("open \"fehlt ✓.png\": No such file or directory"));
    EXPECT_EQ(Run("--script 'fehlt ✓'"), WrongUsage("fehlt ✓: No such file or directory"));
    EXPECT_EQ(Run("größer").Errors, "orbelle-cli: größer: unknown verb\n");
}

TEST_F(NamesTest, ScriptsAndFilesOfABatch) {
    const std::string script = "open {}\nexport \"Ордер/{stem} ✓.ico\"\n";
    Write("зодчий.txt", {script.begin(), script.end()});
    const Outcome told{0,
                       R"({"file":"büro.png","ok":true,"written":[{"path":"Ордер/büro ✓.ico",)"
                       R"("bytes":1150}],"output":[]})"
                       "\n",
                       ""};
    EXPECT_EQ(Run("--each büro.png --json --depfile ü.d -- --script зодчий.txt"), told);
    EXPECT_EQ(Text("ü.d"), "Ордер/büro\\ ✓.ico: büro.png зодчий.txt\n");
    EXPECT_EQ(Run("--each - --json -- --script зодчий.txt", "büro.png\n"), told);
    EXPECT_EQ(Run("--script -", "open büro.png\nexport-set Ордер windows\n"), kSuccess);
    EXPECT_TRUE(Exists("Ордер/windows/büro.ico"));
}

TEST_F(NamesTest, OfWhatWasLeftBehind) {
    {
        formats::JournalFile journal(folder / "state" / "orbelle" / "journals");
        document::Document document;
        document.Master.Layers.emplace_back();
        document.Path = u8"büro ✓.volf";
        journal.Keep(document, 1'000);
    }
    EXPECT_THAT(Run("--recover").Output, HasSubstr(R"("path":"büro ✓.volf")"));
    EXPECT_EQ(Run("--recover 0 ✓.volf"), kSuccess);
    EXPECT_TRUE(Exists("✓.volf"));
}

}  // namespace
}  // namespace orbelle::cli
