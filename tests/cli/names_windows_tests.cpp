// Names as Windows has them, which no shell expands.
#include <windows.h>

#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::HasSubstr;

class WindowsNamesTest : public ProgramTest {
protected:
    WindowsNamesTest() {
        std::filesystem::create_directory(folder / "in");
        for (const char* name : {"a.png", "büro.png", "in/c.png", "in/d.png"})
            Write(name, testing::FilledPicture(16, 16, 0xFF204060));
    }
};

TEST_F(WindowsNamesTest, BackslashesPartFolders) {
    EXPECT_EQ(Run(R"(open in\c.png save in\c.volf export .\in\c.ico)"), kSuccess);
    EXPECT_TRUE(Exists("in/c.volf") && Exists("in/c.ico"));
    EXPECT_EQ(Run(R"(--each in\c.png -- open {} export {dir}/{stem}.gif write-page in\{name}.png)"),
              kSuccess);
    EXPECT_TRUE(Exists("in/c.gif") && Exists("in/c.png.png"));
}

TEST_F(WindowsNamesTest, PatternsOfABatchAreExpanded) {
    EXPECT_EQ(Run("--each *.png -- open {} export {stem}.bmp"), kSuccess);
    EXPECT_TRUE(Exists("a.bmp") && Exists("büro.bmp") && !Exists("c.bmp"));
    EXPECT_EQ(Run(R"(--each in\?.png a.png -- open {} export {stem}.gif)"), kSuccess);
    EXPECT_TRUE(Exists("a.gif") && Exists("c.gif") && Exists("d.gif") && !Exists("büro.gif"));
    const Outcome none = Run("--each *.none -- open {}");
    EXPECT_NE(none.Status, 0);
    EXPECT_THAT(none.Errors, HasSubstr("*.none"));
    // Elsewhere they are no patterns.
    EXPECT_NE(Run("open a.pn?").Status, 0);
}

TEST_F(WindowsNamesTest, NamesThatDifferInCaseAreOneFile) {
    EXPECT_EQ(Run("--each a.png büro.png -- open {} export a.ico").Status, 2);
    std::filesystem::rename(folder / "in/c.png", folder / "in/A.png");
    EXPECT_EQ(Run(R"(--each a.png in/A.png -- open {} export {stem}.ico)"),
              WrongUsage("a.png and in/A.png would both write A.ico"));
}

TEST_F(WindowsNamesTest, DevicesMakeNoFiles) {
    EXPECT_EQ(Run("open a.png export bmp:NUL"), kSuccess);
    EXPECT_FALSE(Exists("NUL.bmp"));
    EXPECT_EQ(Run("open png:NUL").Status, 1);
}

TEST_F(WindowsNamesTest, AFileInUseIsToldAndStays) {
    const std::vector<std::uint8_t> old = Bytes("a.png");
    const HANDLE other = CreateFileW((folder / "a.png").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                     nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(Run("new 8 8 export a.png"),
              Failed("export a.png: another program keeps the file open"));
    CloseHandle(other);
    EXPECT_EQ(Bytes("a.png"), old);
}

}  // namespace
}  // namespace orbelle::cli
