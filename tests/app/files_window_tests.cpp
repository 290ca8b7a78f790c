// Files, the end of the program, a second copy, and what is remembered.
#include <QFile>

#include "real_window.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr QRgb kOther = 0xFF20C060;

class FilesWindowTest : public RealWindowTest {
protected:
    // A change that all of the picture shows.
    void Change() {
        Press({"alt+s", "d"});
        ASSERT_TRUE(WaitUntil([&] { return Count() == 0; }));
    }

    void SecondStart(const QStringList& arguments) {
        QProcess second;
        second.setProcessEnvironment(environment);
        second.start(ORBELLE_PROGRAM, arguments);
        EXPECT_TRUE(EndsWell(second));
        WaitUntilIdle();
    }
};

TEST_F(FilesWindowTest, ASavedDocumentOpensAgain) {
    ASSERT_TRUE(StartWithPicture());
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerFileDialog(Path("work/saved.volf")));
    ASSERT_TRUE(FocusWindow("^saved.volf - Varnel Orbelle$"));
    Press({"ctrl+q"});
    ASSERT_TRUE(EndsWell(program)) << "what is saved asks nothing";

    StartProgram({WritePicture("other.png", QSize(30, 20), kOther)});
    ASSERT_TRUE(FocusMain());
    ASSERT_TRUE(WaitUntil([&] { return Count(kOther) > 0; }));
    Press({"ctrl+o"});
    ASSERT_TRUE(AnswerFileDialog(Path("work/saved.volf")));
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; }));
    EXPECT_TRUE(FocusWindow("^saved.volf - Varnel Orbelle$"));
}

TEST_F(FilesWindowTest, ExportsEachFormat) {
    ASSERT_TRUE(StartWithPicture());
    const struct {
        const char* Mnemonic;
        const char* Ending;
        int Side;  // of the first picture in the file
        int Tolerance;
    } formats[] = {
        {"i", "ico", 128, 0}, {"p", "png", 200, 0}, {"g", "gif", 200, 0},
        {"j", "jpg", 200, 3}, {"b", "bmp", 200, 0},
    };
    for (const auto& [mnemonic, ending, side, tolerance] : formats) {
        const QImage picture = Export(mnemonic, ending);
        ASSERT_EQ(picture.size(), QSize(side, side)) << ending;
        const QRgb pixel = picture.pixel(side / 2, side / 2);
        EXPECT_NEAR(qRed(pixel), qRed(kPictureColor), tolerance) << ending;
        EXPECT_NEAR(qGreen(pixel), qGreen(kPictureColor), tolerance) << ending;
        EXPECT_NEAR(qBlue(pixel), qBlue(kPictureColor), tolerance) << ending;
    }
    // Not a change to save.
    Press({"ctrl+s"});
    EXPECT_TRUE(FocusWindow("^Open File"));
}

TEST_F(FilesWindowTest, ClosingAsksAndDoesAsAnswered) {
    ASSERT_TRUE(StartWithPicture());
    Change();
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"Escape"});
    ASSERT_TRUE(FocusMain());
    EXPECT_EQ(program.state(), QProcess::Running);
    Press({"ctrl+z", "ctrl+z"});
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; })) << "Cancel keeps all";

    Change();
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+y"});
    ASSERT_TRUE(AnswerFileDialog(Path("work/kept.volf")));
    EXPECT_TRUE(EndsWell(program));
    EXPECT_TRUE(QFile::exists(Path("work/kept.volf")));
}

TEST_F(FilesWindowTest, ASecondStartHandsItsFileOver) {
    ASSERT_TRUE(StartWithPicture());
    const QImage before = Scene();
    SecondStart({});
    EXPECT_EQ(Scene(), before);

    SecondStart({WritePicture("other.png", QSize(100, 80), kOther)});
    EXPECT_TRUE(WaitUntil([&] { return Count(kOther) == 100 * 80 && Count() == 0; }));
    EXPECT_EQ(program.state(), QProcess::Running);
}

TEST_F(FilesWindowTest, RemembersItsUser) {
    ASSERT_TRUE(StartWithPicture());
    Press({"x", "alt+h", "t"});
    Click(Control("ColorPanel"));
    Press({"e"});
    Xdotool({"getwindowfocus", "windowmove", "30", "40", "windowsize", "1000", "740"});
    WaitUntilIdle();
    Press({"ctrl+q"});
    ASSERT_TRUE(EndsWell(program));

    const struct {
        const char* Name;
        QVariant Value;
    } remembered[] = {
        {"ForeColor0", "255,0,0,255"},
        {"ForeColor1", "255,255,0,0"},
        {"TipsControl", 1},
        {"CtlTitle1", -1},
        {"CtlTitle2", 0},
        {"CtlTitle3", -1},
        {"isQuick", -1},
        {"CtlScroll22", 100},
        {"CtlScroll23", 10},
        {"MainLeft", 30},
        {"MainTop", 40},
        {"MainWidth", 1000},
        {"MainHeight", 740},
        {"MainState", 0},
    };
    const auto compare = [&](const char* when) {
        const auto settings = SettingsFile();
        for (const auto& [name, value] : remembered)
            EXPECT_EQ(settings->value(name).toStringList().join(','), value.toString())
                << name << ' ' << when;
    };
    compare("after the first run");
    StartProgram({Path("work/tile.png")});
    ASSERT_TRUE(FocusMain());
    Press({"ctrl+q"});
    ASSERT_TRUE(EndsWell(program));
    compare("after a run that changes nothing");
}

}  // namespace
}  // namespace orbelle::app
