// No way through the window's questions loses a document or another file.
#include <csignal>
#include <fstream>

#include "desk.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "real_window.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr QRgb kOther = 0xFF20C060, kThird = 0xFFC0A020;
constexpr QSize kOtherSize{300, 280};
constexpr int kWholeOther = 300 * 280;

class KeptWorkTest : public RealWindowTest {
protected:
    // The picture becomes grey.
    void Change() {
        Press({"alt+s", "d"});
        ASSERT_TRUE(WaitUntil([&] { return Count() == 0; }));
    }
    bool AnswerBox(const QString& title, const QString& key) {
        const bool came = FocusWindow(title);
        Press(key.split(' '));
        return came && FocusMain();
    }
    bool RefuseOverwriting() { return AnswerBox("^Warning$", "Escape"); }
    bool HearWhyNot() { return AnswerBox("^Varnel Orbelle$", "Return"); }
    bool IsAsked() const {
        return IsOpen("^(Save Icon Document|Open File|Warning|New Icon|Varnel Orbelle$)");
    }
    bool ShowsOther() {
        return WaitUntil([&] { return Count(kOther) == kWholeOther && Count() == 0; });
    }

    QString WriteText(const QString& name) const {
        std::ofstream(Path(name).toStdString()) << "my own text";
        return Path(name);
    }
    bool IsText(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) && file.readAll() == "my own text";
    }
    QString Other() { return Write("other.png", PictureOf(kOther, kOtherSize)); }
};

TEST_F(KeptWorkTest, AYesThatCannotBeDoneIsACancel) {
    ASSERT_TRUE(StartWith());
    WriteText("taken.volf");
    const QString other = Other();
    const std::pair<const char*, std::function<void()>> roads[] = {
        {"close", [&] { Press({"ctrl+q"}); }},
        {"New", [&] { Press({"ctrl+n"}); }},
        {"Open", [&] { Press({"ctrl+o"}); }},
        {"hand-over", [&] { HandOver({other}); }},
    };
    Change();
    QImage changed = Scene();
    const auto tryAll = [&](const char* end, const QString& title,
                            const std::function<bool()>& answer) {
        for (const auto& [name, road] : roads) {
            SCOPED_TRACE(std::string(name) + ", " + end);
            road();
            ASSERT_TRUE(FocusWindow("^Save Icon Document"));
            Press({"alt+y"});
            ASSERT_TRUE(answer());
            EXPECT_FALSE(IsAsked());
            EXPECT_TRUE(IsOpen(title));
            EXPECT_EQ(Scene(), changed);
        }
    };
    const QString unnamed = "^Varnel Orbelle - Project";
    tryAll("cancelled", unnamed, [&] { return AnswerBox("^Open File", "Escape"); });
    tryAll("overwriting refused", unnamed,
           [&] { return AnswerFileDialog(Path("taken")) && RefuseOverwriting(); });
    tryAll("no such folder", unnamed,
           [&] { return AnswerFileDialog(Path("gone/a.volf")) && HearWhyNot(); });
    EXPECT_TRUE(IsText("taken.volf"));

    ASSERT_TRUE(QDir(Path("")).mkdir("folder"));
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerFileDialog(Path("folder/kept.volf")));
    ASSERT_TRUE(FocusWindow("^kept.volf - Varnel Orbelle$"));
    Press({"alt+s", "h"});
    ASSERT_TRUE(WaitUntil([&] { return Scene() != changed; }));
    changed = Scene();
    ASSERT_TRUE(QDir(Path("folder")).removeRecursively());
    tryAll("folder removed", "^kept.volf - Varnel Orbelle$", [&] { return HearWhyNot(); });

    ASSERT_TRUE(QDir(Path("")).mkdir("folder"));
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+y"});
    EXPECT_TRUE(EndsWell(program));
    EXPECT_TRUE(QFile::exists(Path("folder/kept.volf")));
}

TEST_F(KeptWorkTest, ARefusedOrFailedSaveAsLeavesTheDocumentItsFile) {
    ASSERT_TRUE(StartWith());
    WriteText("taken.volf");
    const auto saveAs = [&](const QString& name) {
        Press({"ctrl+shift+s"});
        return AnswerFileDialog(Path(name));
    };
    ASSERT_TRUE(saveAs("taken") && RefuseOverwriting());
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerFileDialog(Path("own"))) << "it has no file yet";
    ASSERT_TRUE(FocusWindow("^own.volf - Varnel Orbelle$"));

    Change();
    ASSERT_TRUE(saveAs("taken.VOLF") && FocusMain()) << "another name";
    ASSERT_TRUE(saveAs("own") && AnswerBox("^Warning$", "Tab space"));
    ASSERT_TRUE(FocusWindow("^own.volf - Varnel Orbelle$"));
    const auto own = graphics::StampOf(Path("own.volf").toStdString());
    Press({"alt+s", "h"});
    ASSERT_TRUE(saveAs("taken") && RefuseOverwriting());
    ASSERT_TRUE(saveAs("gone/a") && HearWhyNot());
    Press({"ctrl+s"});
    EXPECT_FALSE(IsAsked());
    EXPECT_TRUE(IsOpen("^own.volf - Varnel Orbelle$"));
    EXPECT_NE(graphics::StampOf(Path("own.volf").toStdString()), own);
    EXPECT_TRUE(IsText("taken.volf"));
    Press({"ctrl+q"});
    EXPECT_TRUE(EndsWell(program));
}

TEST_F(KeptWorkTest, WhatAnotherProgramWroteIsNotOverwrittenUnasked) {
    ASSERT_TRUE(StartWith());
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerFileDialog(Path("own")) && FocusMain());
    Change();
    WriteText("own.volf");
    Press({"ctrl+s"});
    ASSERT_TRUE(RefuseOverwriting());
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+y"});
    ASSERT_TRUE(RefuseOverwriting());
    EXPECT_FALSE(IsAsked());
    EXPECT_TRUE(IsText("own.volf"));
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerBox("^Warning$", "Tab space"));
    EXPECT_FALSE(IsText("own.volf"));
    Press({"ctrl+q"});
    EXPECT_TRUE(EndsWell(program));
}

TEST_F(KeptWorkTest, ATextOpenedAsADocumentStaysAText) {
    ASSERT_TRUE(StartWith());
    WriteText("notes.volf");
    Press({"ctrl+o"});
    ASSERT_TRUE(AnswerFileDialog(Path("notes.volf")) && HearWhyNot());
    EXPECT_EQ(Count(), kWholePicture);
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerBox("^Open File", "Escape")) << "it has no file yet";
    EXPECT_TRUE(IsText("notes.volf"));
}

TEST_F(KeptWorkTest, ADamagedDocumentIsNotReplacedByWhatIsLeftOfIt) {
    const std::filesystem::path damaged = folder / "damaged.volf";
    Desk writer;
    writer.Run([&](editing::Editor& editor) {
        NewDocument(editor, 64, 64);
        for (int i = 0; i < 2; ++i)
            InsertEmptyLayer(editor, 64, 64);
        SaveTo(editor, damaged);
    });
    std::filesystem::resize_file(damaged, std::filesystem::file_size(damaged) - 10);
    const auto before = graphics::StampOf(damaged);

    ASSERT_TRUE(StartWith());
    Press({"ctrl+o"});
    ASSERT_TRUE(AnswerFileDialog(Path("damaged.volf")) && HearWhyNot());
    EXPECT_EQ(Count(), 0);
    EXPECT_TRUE(IsOpen("^Varnel Orbelle - Project"));
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerBox("^Open File", "Escape")) << "it has no file";
    Press({"ctrl+q"});
    ASSERT_TRUE(FocusWindow("^Save Icon Document")) << "it is not as its file is";
    Press({"alt+n"});
    EXPECT_TRUE(EndsWell(program));
    EXPECT_EQ(graphics::StampOf(damaged), before);
}

TEST_F(KeptWorkTest, AHandOverWaitsForDialogsMenusAndDrags) {
    ASSERT_TRUE(StartWith());
    const QString other = Other(), third = Write("third.png", PictureOf(kThird, kOtherSize));
    const auto showsThird = [&] { return WaitUntil([&] { return Count(kThird) == kWholeOther; }); };

    Press({"ctrl+shift+s"});
    ASSERT_TRUE(FocusWindow("^Open File"));
    HandOver({other});
    ASSERT_TRUE(AnswerFileDialog(Path("first")));
    EXPECT_TRUE(ShowsOther());
    ASSERT_TRUE(FocusMain());

    Press({"alt+f", "e", "g"});
    ASSERT_TRUE(AnswerFileDialog(Path("other.gif")) && FocusWindow("^GIF Transparency"));
    HandOver({third});
    EXPECT_FALSE(IsAsked());
    Press({"Return"});
    EXPECT_TRUE(showsThird());
    EXPECT_EQ(QImage(Path("other.gif")).pixel(1, 1), kOther) << "what was to be exported";
    ASSERT_TRUE(FocusMain());

    Press({"alt+f"});
    HandOver({Path("first.volf")});
    EXPECT_EQ(Count(kThird), kWholeOther);
    Press({"Escape", "Escape"});
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; })) << "what was to be saved";
    ASSERT_TRUE(FocusMain());

    // A stroke: it ends, and then the changed document asks for itself.
    Press({"b"});
    MoveTo(page + QPoint(10, 10));
    Do({"mousedown", "1"});
    HandOver({other});
    HandOver({third});
    MoveTo(page + QPoint(20, 10));
    EXPECT_FALSE(IsAsked());
    Do({"mouseup", "1"});
    ASSERT_TRUE(AnswerBox("^Save Icon Document", "Escape"));
    ASSERT_TRUE(FocusWindow("^Save Icon Document")) << "the other one's";
    Press({"alt+n"});
    MoveTo({0, 0});
    EXPECT_TRUE(showsThird());
    EXPECT_FALSE(IsAsked());
    ASSERT_TRUE(FocusMain());
    Press({"ctrl+q"});
    EXPECT_TRUE(EndsWell(program));
}

TEST_F(KeptWorkTest, AHandOverEndsTheWelcome) {
    Remember();
    LayOut();
    Start(program, ORBELLE_PROGRAM, {});
    ASSERT_TRUE(WaitUntil([&] { return IsOpen("^Varnel Orbelle$"); }));
    HandOver({Other()});
    ASSERT_TRUE(ShowsOther());
    EXPECT_FALSE(IsOpen("^Varnel Orbelle$"));
    EXPECT_FALSE(WaitUntil([&] { return Count(kOther) != kWholeOther; }, 1)) << "no text covers it";
}

TEST_F(KeptWorkTest, OfStartsAtTheSameTimeOneHasAllFiles) {
    Remember();
    LayOut();
    const QString other = Other();
    QProcess copies[4];
    for (QProcess& copy : copies)
        Start(copy, ORBELLE_PROGRAM, {other});
    const auto running = [&] {
        return std::ranges::count(copies, QProcess::Running, &QProcess::state);
    };
    EXPECT_TRUE(ShowsOther() && WaitUntil([&] { return running() <= 1; }));
    EXPECT_EQ(running(), 1);
    for (QProcess& copy : copies)
        copy.kill();
    for (QProcess& copy : copies)
        copy.waitForFinished();
}

TEST_F(KeptWorkTest, AFileThatNobodyTakesOpensInItsOwnWindow) {
    ASSERT_TRUE(StartWith());
    kill(static_cast<pid_t>(program.processId()), SIGSTOP);
    QProcess second;
    Start(second, ORBELLE_PROGRAM, {Other()});
    EXPECT_TRUE(ShowsOther());
    EXPECT_EQ(second.state(), QProcess::Running);
    kill(static_cast<pid_t>(program.processId()), SIGCONT);
    WaitUntilIdle();
    second.kill();
    second.waitForFinished();
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; }))
        << "it is not opened a second time";
}

TEST_F(KeptWorkTest, ANameThatIsNotUtf8IsHandedOverAndSavedTo) {
    ASSERT_TRUE(StartWith());
    Press({"ctrl+s"});
    ASSERT_TRUE(AnswerFileDialog(Path("a")) && FocusMain());
    const std::filesystem::path odd = folder / "odd\xFF.volf";
    std::filesystem::rename(folder / "a.volf", odd);
    Change();
    // A shell passes the byte on.
    QProcess second;
    Start(second, "sh", {"-c", "exec \"$0\" odd\"$(printf '\\377')\".volf", ORBELLE_PROGRAM});
    EXPECT_TRUE(EndsWell(second));
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press({"alt+n"});
    EXPECT_TRUE(WaitUntil([&] { return Count() == kWholePicture; }));
    ASSERT_TRUE(FocusMain());
    Change();
    const auto before = graphics::StampOf(odd);
    Press({"ctrl+s"});
    EXPECT_FALSE(IsAsked());
    EXPECT_NE(graphics::StampOf(odd), before);
    EXPECT_EQ(QDir(Path("")).entryList({"*.volf"}), QStringList()) << "there is no other";
}

}  // namespace
}  // namespace orbelle::app
