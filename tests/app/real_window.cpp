#include "real_window.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>

#include "app/main_window.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "widgets/button_bar.h"

namespace orbelle::app {
namespace {

using orbelle::testing::WaitUntil;

constexpr QSize kDisplay(1280, 900);
constexpr QPoint kWindowPlace(20, 20);
constexpr qint64 kDisplayBytes = qint64{kDisplay.width()} * kDisplay.height() * 4;

// Whether no thread of the process runs or is about to.
bool IsAsleep(qint64 process) {
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

int CountOf(const QImage& picture, QRgb color) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        count += static_cast<int>(std::count(row, row + picture.width(), color));
    }
    return count;
}

QString Number(int number) {
    return QString::number(number);
}

// What it shows is a file that ends with the pixels.
class Display {
public:
    Display() {
        server_.start(
            "Xvfb", {"-displayfd", "1", "-screen", "0",
                     QString("%1x%2x24").arg(kDisplay.width()).arg(kDisplay.height()), "-nolisten",
                     "tcp", "-noreset", "-fbdir", QString::fromStdString(folder_.Path().string())});
        if (!server_.waitForStarted() ||
            !WaitUntil([&] { return server_.waitForReadyRead(100) || server_.canReadLine(); }))
            return;
        name_ = ":" + server_.readLine().trimmed();
        file_.setFileName(QString::fromStdString((folder_ / "Xvfb_screen0").string()));
        if (file_.open(QIODevice::ReadOnly))
            pixels_ = file_.map(file_.size() - kDisplayBytes, kDisplayBytes);
    }
    ~Display() {
        server_.kill();
        server_.waitForFinished();
    }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    bool Works() const { return pixels_; }
    const QString& Name() const { return name_; }
    qint64 Process() const { return server_.processId(); }
    // As it is now; to be copied.
    QImage Picture() const {
        return {pixels_, kDisplay.width(), kDisplay.height(), QImage::Format_RGB32};
    }

private:
    orbelle::testing::TemporaryFolder folder_;
    QProcess server_;
    QString name_;
    QFile file_;
    const uchar* pixels_ = nullptr;
};

std::unique_ptr<Display> display;

}  // namespace

RealProgramTest::RealProgramTest() {
    for (const char* name : {"home", "run", "work"})
        std::filesystem::create_directory(folder / name);
    std::filesystem::permissions(folder / "run", std::filesystem::perms::owner_all);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        environment.insert(name, Path("home"));
    environment.insert("XDG_RUNTIME_DIR", Path("run"));
    // Away from the user's desktop too: its own menu bar would take the window's.
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    environment.remove("QT_QPA_PLATFORMTHEME");
}

RealProgramTest::~RealProgramTest() {
    program.kill();
    program.waitForFinished();
}

QString RealProgramTest::Path(const QString& name) const {
    return QString::fromStdString((folder / name.toStdString()).string());
}

QString RealProgramTest::WritePicture(const QString& name, QSize size, QRgb color) {
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor::fromRgba(color));
    picture.save(Path("work/" + name));
    return Path("work/" + name);
}

std::unique_ptr<QSettings> RealProgramTest::SettingsFile() const {
    return std::make_unique<QSettings>(Path("home/OrbelleWork.conf"), QSettings::IniFormat);
}

void RealProgramTest::Remember(std::initializer_list<std::pair<const char*, QVariant>> values) {
    const auto settings = SettingsFile();
    for (const auto& [name, value] : values)
        settings->setValue(name, value);
}

void RealProgramTest::StartProgram(const QStringList& arguments) {
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(Path("work"));
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(ORBELLE_PROGRAM, arguments);
}

bool RealProgramTest::EndsWell(QProcess& process) {
    return WaitUntil([&] { return process.state() == QProcess::NotRunning; }) &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

RealWindowTest::RealWindowTest() = default;
RealWindowTest::~RealWindowTest() = default;

void RealWindowTest::SetUpTestSuite() {
    display = std::make_unique<Display>();
}

void RealWindowTest::TearDownTestSuite() {
    display.reset();
}

void RealWindowTest::SetUp() {
    for (const char* tool : {"Xvfb", "xdotool"})
        if (QStandardPaths::findExecutable(tool).isEmpty())
            GTEST_SKIP() << tool << " is not installed";
    ASSERT_TRUE(display->Works());
    environment.insert("DISPLAY", display->Name());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    // The display draws the pointer into its picture.
    MoveTo({0, 0});
}

bool RealWindowTest::StartWithPicture() {
    QImage picture(kPictureSide, kPictureSide, QImage::Format_ARGB32);
    picture.fill(kPictureColor);
    return StartWith(picture);
}

bool RealWindowTest::StartWith(const QImage& picture) {
    Remember({{"MainLeft", kWindowPlace.x()},
              {"MainTop", kWindowPlace.y()},
              {"MainWidth", kDefaultMainSize.width()},
              {"MainHeight", kDefaultMainSize.height()},
              {"isQuick", -1},
              {"CtlTitle1", -1},
              {"CtlTitle2", -1},
              {"CtlTitle3", -1},
              {"CtlTitle5", -1},
              {"CtlTitle6", -1},
              {"CtlScroll22", 100},
              {"CtlScroll23", 10},
              {"ForeColor0", "255,255,0,0"},
              {"ForeColor1", "255,0,0,255"}});
    picture.save(Path("work/tile.png"));
    StartProgram({Path("work/tile.png")});
    const int expected = CountOf(picture, kPictureColor);
    if (!FocusMain() || !WaitUntil([&] { return Count() == expected; }))
        return false;
    page = Bounds().topLeft();
    return true;
}

bool RealWindowTest::FocusWindow(const QString& title) {
    const bool found = WaitUntil([&] {
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

bool RealWindowTest::FocusMain() {
    return FocusWindow("^Varnel Orbelle - Project|. - Varnel Orbelle$");
}

void RealWindowTest::Press(const QStringList& keys) {
    for (const QString& key : keys) {
        Xdotool({"key", key});
        WaitUntilIdle();
    }
}

void RealWindowTest::Type(const QString& text) {
    Xdotool({"type", "--delay", "1", text});
    WaitUntilIdle();
}

void RealWindowTest::MoveTo(QPoint place) {
    Xdotool({"mousemove", Number(place.x()), Number(place.y())});
    WaitUntilIdle();
}

void RealWindowTest::Click(QPoint place, int button) {
    MoveTo(place);
    Xdotool({"click", Number(button)});
    WaitUntilIdle();
}

void RealWindowTest::Drag(QPoint from, QPoint to) {
    MoveTo(from);
    Xdotool({"mousedown", "1"});
    WaitUntilIdle();
    MoveTo((from + to) / 2);
    MoveTo(to);
    Xdotool({"mouseup", "1"});
    WaitUntilIdle();
}

void RealWindowTest::WaitUntilIdle() {
    int asleep = 0;
    WaitUntil([&] {
        const bool rests = program.state() != QProcess::Running || IsAsleep(program.processId());
        asleep = rests && IsAsleep(display->Process()) ? asleep + 1 : 0;
        return asleep == 2;
    });
}

QRect RealWindowTest::SceneRect() {
    const QWidget& scene = *Twin().findChild<SceneView*>();
    return QRect(kWindowPlace + scene.mapTo(&Twin(), QPoint(0, 0)), scene.size());
}

QImage RealWindowTest::Scene() {
    return display->Picture().copy(SceneRect()).convertToFormat(QImage::Format_ARGB32);
}

int RealWindowTest::Count(QRgb color) {
    return CountOf(Scene(), color);
}

QRect RealWindowTest::Bounds(QRgb color) {
    const QImage scene = Scene();
    QRect bounds;
    for (int y = 0; y < scene.height(); ++y)
        for (int x = 0; x < scene.width(); ++x)
            if (scene.pixel(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
    return bounds.translated(SceneRect().topLeft());
}

// A window of this process that is laid out like the program's tells where its controls are.
MainWindow& RealWindowTest::Twin() {
    if (!twin_) {
        Settings settings;
        const auto remembered = SettingsFile();
        for (const QString& key : remembered->allKeys())
            settings.setValue(key, remembered->value(key));
        twin_ = std::make_unique<MainWindow>();
        twin_->RestoreSettings();
        twin_->resize(kDefaultMainSize);
        twin_->show();
        QApplication::processEvents();
        settings.clear();
    }
    return *twin_;
}

QPoint RealWindowTest::Control(const QString& name) {
    for (QWidget* widget : Twin().findChildren<QWidget*>())
        if (widget->objectName() == name || widget->accessibleName() == name)
            return kWindowPlace + widget->mapTo(&Twin(), widget->rect().center());
    ADD_FAILURE() << "no control is named " << name.toStdString();
    return {};
}

QPoint RealWindowTest::Button(const QString& bar, int button) {
    const auto& toolBar = *Twin().findChild<widgets::ButtonBar*>(bar);
    return Control(bar) - toolBar.rect().center() + toolBar.ButtonRect(button).center();
}

QPoint RealWindowTest::PopupButton(const QString& popup, int opener, int button) {
    const auto& column = *Twin().findChild<widgets::ButtonBar*>("ToolBox");
    auto& bar = *Twin().findChild<widgets::ButtonBar*>(popup);
    bar.resize(bar.sizeHint());
    bar.show();
    const QPoint place(column.width() + 1, column.ButtonRect(opener).top());
    return kWindowPlace + column.mapTo(&Twin(), place) + bar.ButtonRect(button).center();
}

bool RealWindowTest::AnswerFileDialog(const QString& path) {
    if (!FocusWindow("^Open File"))
        return false;
    Press({"ctrl+a"});
    Type(path);
    Press({"Return"});
    return true;
}

QImage RealWindowTest::Export(const QString& mnemonic, const QString& ending) {
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
    if (!WaitUntil([&] { return picture.load(path); }) || !FocusMain())
        return {};
    return picture.convertToFormat(QImage::Format_ARGB32);
}

QImage RealWindowTest::ExportPng() {
    return Export("p", "png");
}

bool RealWindowTest::QuitWithoutSaving() {
    Press({"ctrl+q"});
    if (!FocusWindow("^Save Icon Document"))
        return false;
    Press({"alt+n"});
    return EndsWell(program);
}

QString RealWindowTest::Xdotool(const QStringList& arguments) {
    QProcess tool;
    tool.setProcessEnvironment(environment);
    tool.start("xdotool", arguments);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

}  // namespace orbelle::app
