// The real program as its own process, its window under real keys and a real pointer.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <memory>

#include "app/main_window.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "editing/document_commands.h"
#include "editing/view_commands.h"
#include "support/temporary_folder.h"
#include "waiting.h"
#include "widgets/button_bar.h"

namespace orbelle::app {

// Too large to be seen whole at more than 100 %, so that it comes at that.
inline constexpr int kPictureSide = 300;
inline constexpr QRgb kPictureColor = 0xFF3A1C5E;
inline constexpr int kWholePicture = kPictureSide * kPictureSide;

inline QImage PictureOf(QRgb color, QSize size = {kPictureSide, kPictureSide}) {
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    return picture;
}

inline int CountOf(const QImage& picture, QRgb color) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        count += static_cast<int>(std::count(row, row + picture.width(), color));
    }
    return count;
}

// What it shows is a file that ends with the pixels.
class Display {
public:
    Display() {
        server_.start("Xvfb",
                      {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp",
                       "-noreset", "-fbdir", QString::fromStdString(folder_.Path().string())});
        if (!server_.waitForStarted() || !testing::WaitUntil([&] {
                return server_.waitForReadyRead(100) || server_.canReadLine();
            }))
            return;
        Name = ":" + server_.readLine().trimmed();
        file_.setFileName(QString::fromStdString((folder_ / "Xvfb_screen0").string()));
        constexpr qint64 kBytes = 1280 * 900 * 4;
        if (file_.open(QIODevice::ReadOnly))
            pixels_ = file_.map(file_.size() - kBytes, kBytes);
    }
    ~Display() { Kill(); }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    bool Works() const { return pixels_; }
    void Kill() {
        server_.kill();
        server_.waitForFinished();
    }
    qint64 Process() const { return server_.processId(); }
    // As it is now; to be copied.
    QImage Picture() const { return {pixels_, 1280, 900, QImage::Format_RGB32}; }

    QString Name;

private:
    orbelle::testing::TemporaryFolder folder_;
    QProcess server_;
    QFile file_;
    const uchar* pixels_ = nullptr;
};

// Programs share the settings of the tests' process and have a working folder of their own.
class RealProgramTest : public ::testing::Test {
protected:
    RealProgramTest() {
        Settings().clear();
        // Away from the user's desktop: its own menu bar would take the window's.
        environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
        environment.remove("QT_QPA_PLATFORMTHEME");
    }

    QString Path(const QString& name) const {
        return QString::fromStdString((folder / name.toStdString()).string());
    }
    QString Write(const QString& name, const QImage& picture) const {
        picture.save(Path(name));
        return Path(name);
    }
    void Start(QProcess& process, const QString& executable, const QStringList& arguments) const {
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(Path(""));
        process.start(executable, arguments);
    }
    // Waits for the end; false unless it came by itself with status 0.
    static bool EndsWell(QProcess& process) {
        return testing::WaitUntil([&] { return process.state() == QProcess::NotRunning; }) &&
               process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    orbelle::testing::TemporaryFolder folder;
    orbelle::testing::TemporaryFolder state;  // where unsaved work is kept
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

// All places are pixels of the display.
class RealWindowTest : public RealProgramTest {
protected:
    ~RealWindowTest() override {
        program.kill();
        program.waitForFinished();
    }

    void SetUp() override {
        for (const char* tool : {"Xvfb", "xdotool"})
            if (QStandardPaths::findExecutable(tool).isEmpty())
                GTEST_SKIP() << tool << " is not installed";
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("XDG_STATE_HOME", QString::fromStdString(state.Path().string()));
        StartDisplay();
    }

    void StartDisplay() {
        display_ = std::make_unique<Display>();
        ASSERT_TRUE(display_->Works());
        environment.insert("DISPLAY", display_->Name);
        MoveTo({0, 0});  // the display draws the pointer into its picture
    }
    void KillDisplay() { display_->Kill(); }

    // What the program remembers: all panels open, opaque red and blue as colours.
    void Remember() {
        const QString remembered =
            "MainLeft=20 MainTop=20 MainWidth=1100 MainHeight=760 isQuick=-1 CtlTitle1=-1 "
            "CtlTitle2=-1 CtlTitle3=-1 CtlTitle5=-1 CtlTitle6=-1 SizesClosed=1 CtlScroll22=100 "
            "CtlScroll23=10 "
            "ForeColor0=255,255,0,0 ForeColor1=255,0,0,255";
        for (const QString& setting : remembered.split(' '))
            Settings().setValue(setting.section('=', 0, 0), setting.section('=', 1));
    }
    // Controls and scene are found where that puts them.
    void LayOut() {
        // A window laid out like the program's tells where its controls are.
        twin_ = std::make_unique<MainWindow>();
        twin_->RestoreSettings();
        twin_->resize(kDefaultMainSize);
        twin_->show();
        QApplication::processEvents();
    }
    // Starts with a picture open, at 100 %. False: the picture did not appear. Its corners are to
    // have kPictureColor.
    bool StartWith(const QImage& picture = PictureOf(kPictureColor)) {
        Remember();
        LayOut();
        StartProgram({Write("tile.png", picture)});
        const int expected = CountOf(picture, kPictureColor);
        if (!FocusMain() || !testing::WaitUntil([&] { return Count() == expected; }))
            return false;
        const QImage scene = Scene();
        page = {0, 0};
        while (CountOf(scene.copy(page.x(), 0, 1, scene.height()), kPictureColor) == 0)
            ++page.rx();
        while (scene.pixel(page) != kPictureColor)
            ++page.ry();
        page += SceneRect().topLeft();
        return true;
    }
    void StartProgram(const QStringList& arguments) {
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        Start(program, ORBELLE_PROGRAM, arguments);
    }

    // Waits for a window whose title matches and gives it the keyboard: no window manager does.
    bool FocusWindow(const QString& title) {
        const bool found = testing::WaitUntil([&] {
            const QString window =
                Xdotool({"search", "--onlyvisible", "--name", title}).section('\n', 0, 0);
            if (window.isEmpty())
                return false;
            Xdotool({"windowfocus", "--sync", window});
            return Xdotool({"getwindowfocus", "-f"}) == window;
        });
        WaitUntilIdle();
        return found;
    }
    bool IsOpen(const QString& title) const {
        return !Xdotool({"search", "--onlyvisible", "--name", title}).isEmpty();
    }
    // The main window before there is a document; the welcome's, before it, has the same title.
    bool FocusEmptyMain() {
        const QString title = "^Varnel Orbelle$";
        const QString size =
            QString("%1x%2").arg(kDefaultMainSize.width()).arg(kDefaultMainSize.height());
        return testing::WaitUntil([&] {
                   return Xdotool({"search", "--onlyvisible", "--name", title, "getwindowgeometry"})
                       .contains(size);
               }) &&
               FocusWindow(title);
    }
    bool FocusMain() { return FocusWindow("^Varnel Orbelle - Project|. - Varnel Orbelle$"); }

    // Puts the window that has the keyboard where the twin is.
    bool MoveToTwin() {
        const QString x = QString::number(kWindowPlace.x()), y = QString::number(kWindowPlace.y());
        const QString window = Xdotool({"getwindowfocus", "-f"});
        const bool isThere = testing::WaitUntil([&] {
            Xdotool({"windowmove", window, x, y});
            return Xdotool({"getwindowgeometry", window}).contains("Position: " + x + "," + y);
        });
        WaitUntilIdle();
        return isThere;
    }

    void Do(const QStringList& input) {
        Xdotool(input);
        WaitUntilIdle();
    }
    void Press(const QStringList& keys) {
        for (const QString& key : keys)
            Do({"key", key});
    }
    void MoveTo(QPoint place) {
        Do({"mousemove", QString::number(place.x()), QString::number(place.y())});
    }
    void Click(QPoint place, int button = 1) {
        MoveTo(place);
        Do({"click", QString::number(button)});
    }
    void Drag(QPoint from, QPoint to) {
        MoveTo(from);
        Do({"mousedown", "1"});
        MoveTo((from + to) / 2);
        MoveTo(to);
        Do({"mouseup", "1"});
    }
    // Clicks a button of the tool column, and one of the pop-up that it opens; from 1.
    void Pick(int tool, const QString& popup, int button) {
        const auto& column = *twin_->findChild<widgets::ButtonBar*>("ToolBox");
        const QPoint corner = kWindowPlace + column.mapTo(twin_.get(), QPoint());
        const QRect opener = column.ButtonRect(tool);
        Click(corner + opener.center());
        auto& bar = *twin_->findChild<widgets::ButtonBar*>(popup);
        bar.resize(bar.sizeHint());
        bar.show();
        Click(corner + QPoint(column.width() + 1, opener.top()) + bar.ButtonRect(button).center());
    }

    // Until display and program have taken all input and sleep.
    void WaitUntilIdle() {
        int asleep = 0;
        testing::WaitUntil([&] {
            const bool rests =
                program.state() != QProcess::Running || IsAsleep(program.processId());
            asleep = rests && IsAsleep(display_->Process()) ? asleep + 1 : 0;
            return asleep == 2;
        });
    }

    // The part of the display where the page is, as it is now, and its pixels in a colour.
    QImage Scene() const {
        return display_->Picture().copy(SceneRect()).convertToFormat(QImage::Format_ARGB32);
    }
    int Count(QRgb color = kPictureColor) const { return CountOf(Scene(), color); }
    // Of the control that has this name, or this name for assistive tools.
    QRect Place(const QString& name) const {
        for (QWidget* widget : twin_->findChildren<QWidget*>())
            if (widget->objectName() == name || widget->accessibleName() == name)
                return {kWindowPlace + widget->mapTo(twin_.get(), QPoint()), widget->size()};
        ADD_FAILURE() << "no control is named " << name.toStdString();
        return {};
    }
    QPoint Control(const QString& name) const { return Place(name).center(); }

    // A second start, which is to end at once.
    void HandOver(const QStringList& arguments) {
        QProcess second;
        Start(second, ORBELLE_PROGRAM, arguments);
        EXPECT_TRUE(EndsWell(second));
        WaitUntilIdle();
    }

    // Gives a path to the file dialog that is to open, or is open.
    bool AnswerFileDialog(const QString& path) {
        if (!FocusWindow("^Open File"))
            return false;
        Press({"ctrl+a"});
        Do({"type", "--delay", "1", path});
        Press({"Return"});
        return true;
    }
    // Exports through the menu, whose entry has the mnemonic, and reads the picture back; null:
    // there was none.
    QImage Export(const QString& mnemonic = "p", const QString& ending = "png") {
        const QString path = Path(QString("export%1.%2").arg(++exports_).arg(ending));
        Press({"alt+f", "e", mnemonic});
        if (!AnswerFileDialog(path))
            return {};
        if (mnemonic == "g") {
            if (!FocusWindow("^GIF Transparency Optimizer"))
                return {};
            Press({"Return"});
        }
        QImage picture;
        if (!testing::WaitUntil([&] { return picture.load(path); }) || !FocusMain())
            return {};
        return picture.convertToFormat(QImage::Format_ARGB32);
    }

    // Where the page's corner is once the program shows an empty page of that size at 100 %.
    QPoint PlaceOfNewPage(int side) {
        twin_->Run([side](editing::Editor& editor) { NewDocument(editor, side, side); });
        // Until the bars have found their places: what is queued twice moves nothing any more.
        QPoint place, before;
        int same = 0;
        testing::WaitUntil([&] {
            QApplication::processEvents();
            twin_->Run(editing::OriginalSize);
            const document::View& view = twin_->Editor().View;
            const document::Page& shown = twin_->Editor().Page();
            before = std::exchange(
                place, SceneRect().topLeft() + QPoint(document::PageOffsetX(shown, view),
                                                      document::PageOffsetY(shown, view)));
            same = twin_->IsAtRest() && place == before ? same + 1 : 0;
            return same == 3;
        });
        return place;
    }
    QImage Shown(const QRect& area) const { return display_->Picture().copy(area); }
    QRgb At(QPoint place) const { return display_->Picture().pixel(place); }

    QPoint page;  // where the picture's first pixel is
    QProcess program;

private:
    static constexpr QPoint kWindowPlace{20, 20};

    // Whether no thread of the process runs or is about to.
    static bool IsAsleep(qint64 process) {
        const QDir tasks(QString("/proc/%1/task").arg(process));
        for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile file(tasks.filePath(task + "/stat"));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QByteArray text = file.readAll();
            if (text.mid(text.lastIndexOf(')') + 2, 1) != "S")
                return false;
        }
        return true;
    }
    QString Xdotool(const QStringList& arguments) const {
        QProcess tool;
        Start(tool, "xdotool", arguments);
        tool.waitForFinished();
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }
    QRect SceneRect() const {
        const QWidget& scene = *twin_->findChild<SceneView*>();
        return {kWindowPlace + scene.mapTo(twin_.get(), QPoint()), scene.size()};
    }

    std::unique_ptr<Display> display_;
    std::unique_ptr<MainWindow> twin_;
    int exports_ = 0;
};

}  // namespace orbelle::app
