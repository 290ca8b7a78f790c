// What differs between two files, for scripts and for people.
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060;

class DiffVerb : public ProgramTest {
protected:
    DiffVerb() {
        Write("a.png", FilledPicture(40, 40, kBlue));
        EXPECT_EQ(Run("open a.png icon-sizes 16 32 export a.ico size 16 foreground '#206060' "
                      "tool pencil drag 2 2 13 2 icon-sizes 16 24 32 export b.ico"),
                  kSuccess);
    }

    static Outcome Differs(const std::string& lines) { return {1, lines, ""}; }
};

TEST_F(DiffVerb, TellsSizesThatDifferByLineAndStatus) {
    EXPECT_EQ(Run("diff a.ico a.ico"), kSuccess);
    const std::string lines =
        "{\"size\":16,\"pixels\":12,\"max\":32}\n{\"size\":24,\"only\":\"B\"}\n";
    EXPECT_EQ(Run("diff a.ico b.ico"), Differs(lines));
    EXPECT_EQ(Run("diff b.ico ./a.ico new 8 8 info").Output.substr(33, 22),
              "{\"size\":24,\"only\":\"A\"}")
        << "and goes on";
    EXPECT_EQ(Run("diff - b.ico sheet.png <a.ico"), Differs(lines));
    EXPECT_EQ(Picture("sheet.png").Width(), 3 * 256 + 4 * 16);
    EXPECT_EQ(Run("open a.ico save a.volf background '#20FF0000' save b.volf "
                  "compress small export a.png diff a.volf a.volf"),
              kSuccess);
    EXPECT_EQ(Run("diff a.volf b.volf").Output, "") << "opaque pages hide the background";
    EXPECT_EQ(Run("diff a.volf a.png"), kSuccess);
}

TEST_F(DiffVerb, FailsForFilesThatCantBeRead) {
    EXPECT_EQ(Run("diff a.ico none.ico"), Failed("diff a.ico none.ico: No such file or directory"));
    std::vector<std::uint8_t> bytes = Bytes("a.ico");
    bytes.resize(bytes.size() - 1000);
    Write("cut.ico", bytes);
    EXPECT_EQ(Run("diff cut.ico a.ico s.png").Status, 1);
    EXPECT_FALSE(Exists("s.png"));
    EXPECT_EQ(Run("diff a.ico b.ico sheet.jpg"),
              WrongUsage("diff a.ico b.ico sheet.jpg: SHEET must be a PNG file"));
    EXPECT_EQ(Run("diff a.ico b.ico png:-"),
              WrongUsage("diff a.ico b.ico png:-: something else goes to standard output"));
}

TEST_F(DiffVerb, OfManyFilesIsNoFailure) {
    Write("b.png", FilledPicture(40, 40, kBlue + 1));
    EXPECT_EQ(Run("--each b.png a.png --json -- diff a.png {}"),
              Differs("{\"file\":\"b.png\",\"ok\":true,\"written\":[],"
                      "\"output\":[\"{\\\"size\\\":40,\\\"pixels\\\":1600,\\\"max\\\":1}\"]}\n"
                      "{\"file\":\"a.png\",\"ok\":true,\"written\":[],\"output\":[]}\n"));
}

}  // namespace
}  // namespace orbelle::cli
