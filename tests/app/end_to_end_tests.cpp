// The real program on a real (virtual) display, driven by the keyboard.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>

#include "support/temporary_folder.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr int kWidth = 1280;
constexpr int kHeight = 900;
constexpr int kPictureSide = 200;
constexpr QRgb kPictureColor = 0xFF3A1C5E;
constexpr int kWholePicture = kPictureSide * kPictureSide;

class EndToEndTest : public ::testing::Test {
protected:
    EndToEndTest() {
        for (const char* name : {"home", "run", "work", "screen"})
            std::filesystem::create_directory(folder / name);
        std::filesystem::permissions(folder / "run", std::filesystem::perms::owner_all);
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            environment.insert(name, Path("home"));
        environment.insert("XDG_RUNTIME_DIR", Path("run"));
        // Away from the user's desktop too: its own menu bar would take the window's.
        environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }

    ~EndToEndTest() override {
        for (QProcess* process : {&program, &display}) {
            process->kill();
            process->waitForFinished();
        }
    }

    QString Path(const char* name) const {
        return QString::fromStdString((folder / name).string());
    }

    QString WritePicture() {
        QImage picture(kPictureSide, kPictureSide, QImage::Format_ARGB32);
        picture.fill(QColor::fromRgb(kPictureColor));
        picture.save(Path("work/tile.png"));
        return Path("work/tile.png");
    }

    // A display of our own whose picture is the file ScreenFile().
    bool StartDisplay() {
        display.start("Xvfb", {"-displayfd", "1", "-screen", "0",
                               QString("%1x%2x24").arg(kWidth).arg(kHeight), "-nolisten", "tcp",
                               "-noreset", "-fbdir", Path("screen")});
        if (!display.waitForStarted() ||
            !WaitUntil([&] { return display.waitForReadyRead(100) || display.canReadLine(); }))
            return false;
        environment.insert("DISPLAY", ":" + display.readLine().trimmed());
        environment.insert("QT_QPA_PLATFORM", "xcb");
        // The display draws the pointer into its picture.
        Xdotool({"mousemove", "0", "0"});
        return true;
    }

    void StartProgram(const QStringList& arguments) {
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(Path("work"));
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(ORBELLE_PROGRAM, arguments);
    }

    QString Xdotool(const QStringList& arguments) {
        QProcess tool;
        tool.setProcessEnvironment(environment);
        tool.start("xdotool", arguments);
        tool.waitForFinished();
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }

    // Waits for a window whose title matches and gives it the keyboard: no window manager does.
    bool FocusWindow(const QString& title) {
        return WaitUntil([&] {
            const QString window =
                Xdotool({"search", "--onlyvisible", "--name", title}).section('\n', 0, 0);
            if (window.isEmpty())
                return false;
            Xdotool({"windowfocus", "--sync", window});
            return Xdotool({"getwindowfocus", "-f"}) == window;
        });
    }

    void Press(const QString& keys) { Xdotool({"key", keys}); }

    // How many pixels of the screen have the picture's colour. The display's file ends with them.
    int PicturePixels() const {
        QFile file(Path("screen/Xvfb_screen0"));
        if (!file.open(QIODevice::ReadOnly) || file.size() < kWidth * kHeight * 4)
            return -1;
        file.seek(file.size() - kWidth * kHeight * 4);
        const QByteArray bytes = file.readAll();
        const QImage screen(reinterpret_cast<const uchar*>(bytes.constData()), kWidth, kHeight,
                            QImage::Format_RGB32);
        int count = 0;
        for (int y = 0; y < kHeight; ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
            count += static_cast<int>(std::count_if(row, row + kWidth, [](QRgb pixel) {
                return (pixel | 0xFF000000) == kPictureColor;
            }));
        }
        return count;
    }

    orbelle::testing::TemporaryFolder folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QProcess display;
    QProcess program;
};

TEST_F(EndToEndTest, OpensAPictureStylesItUndoesAndCloses) {
    for (const char* tool : {"Xvfb", "xdotool"})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            GTEST_SKIP() << tool << " is not installed";
    ASSERT_TRUE(StartDisplay());
    StartProgram({WritePicture()});
    ASSERT_TRUE(FocusWindow("^Varnel Orbelle - Project"));
    ASSERT_TRUE(WaitUntil([&] { return PicturePixels() == kWholePicture; })) << PicturePixels();

    Press("alt+s");
    // The open menu hides nothing of the picture, so its gloss is what takes pixels away.
    Press("c");
    ASSERT_TRUE(WaitUntil([&] { return PicturePixels() < kWholePicture * 9 / 10; }));
    Press("ctrl+z");
    Press("ctrl+z");
    ASSERT_TRUE(WaitUntil([&] { return PicturePixels() == kWholePicture; })) << PicturePixels();

    Press("ctrl+q");
    ASSERT_TRUE(FocusWindow("^Save Icon Document"));
    Press("alt+n");
    ASSERT_TRUE(WaitUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);

    EXPECT_EQ(QDir(Path("work")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("tile.png"));
    EXPECT_TRUE(QFile::exists(Path("home/OrbelleWork.conf")));
}

TEST_F(EndToEndTest, AScreenshotAt200PercentHasHardSquares) {
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_SCALE_FACTOR", "2");
    StartProgram({"--screenshot", Path("work/shot.png"), WritePicture()});
    ASSERT_TRUE(program.waitForFinished(60000));
    ASSERT_EQ(program.exitCode(), 0);

    const QImage shot(Path("work/shot.png"));
    ASSERT_EQ(shot.size(), QSize(2200, 1520));
    constexpr int kSceneEnd = 1600;  // the layer list shows the picture, too
    int picturePixels = 0;
    int softSquares = 0;
    for (int y = 200; y < shot.height(); y += 2) {
        for (int x = 0; x < kSceneEnd; x += 2) {
            const QRgb pixel = shot.pixel(x, y);
            picturePixels += pixel == kPictureColor;
            softSquares += pixel == kPictureColor &&
                           (pixel != shot.pixel(x + 1, y) || pixel != shot.pixel(x, y + 1) ||
                            pixel != shot.pixel(x + 1, y + 1));
        }
    }
    EXPECT_EQ(picturePixels, kWholePicture);
    EXPECT_EQ(softSquares, 0);
    EXPECT_FALSE(QFile::exists(Path("home/OrbelleWork.conf")));
}

TEST_F(EndToEndTest, AScreenshotOfABrokenFileFails) {
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    StartProgram({"--screenshot", Path("work/shot.png"), Path("work/none.png")});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_FALSE(QFile::exists(Path("work/shot.png")));
}

}  // namespace
}  // namespace orbelle::app
