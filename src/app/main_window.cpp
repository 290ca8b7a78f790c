#include "app/main_window.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMenu>
#include <QStatusBar>
#include <QTemporaryFile>

#include "app/close_tips_tab.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/system_clipboard.h"
#include "app/welcome_window.h"
#include "editing/clipboard_commands.h"
#include "editing/command_frame.h"
#include "editing/document_commands.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

constexpr int kZoomTickMilliseconds = 1;

}  // namespace

MainWindow::MainWindow() {
    setObjectName("MainWindow");
    menu_ = std::make_unique<MainMenu>(*this);
    bars_ = std::make_unique<ButtonBars>(*this);
    pointerStatus_ = std::make_unique<PointerStatus>(*statusBar());
    AddPanels();
    ConnectScene();
    AddShortcuts();

    zoomTimer_.setInterval(kZoomTickMilliseconds);
    connect(&zoomTimer_, &QTimer::timeout, this, [this] {
        bool done = true;
        RunGuarded([&](editing::Editor& editor) { done = TickZoomAnimation(editor); });
        if (done)
            zoomTimer_.stop();
    });
    layersTimer_.setSingleShot(true);
    connect(&layersTimer_, &QTimer::timeout, this, [this] { rightPanel_->ShowLayers(editor_); });
    const auto lookAtClipboard = [this] {
        clipboardHasPicture_ = SystemClipboardHasPicture() || !SystemClipboardFiles().isEmpty();
    };
    lookAtClipboard();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this, lookAtClipboard] {
        lookAtClipboard();
        ControlsChanged();
    });
    statusBar()->setSizeGripEnabled(false);

    MainWindow::SceneChanged();
    MainWindow::LayerPanelChanged();
    MainWindow::ControlsChanged();
    MainWindow::TitleChanged();
}

void MainWindow::Run(const EditorCommand& command) {
    statusBar()->clearMessage();
    RunGuarded(command);
}

void MainWindow::RunGuarded(const EditorCommand& command) {
    const std::string failure = editing::Guarded([&] { command(editor_); });
    if (!failure.empty())
        ShowMessage(failure);
}

void MainWindow::ShellOpen(const QString& commandLine) {
    const std::string command = QFile::encodeName(commandLine).toStdString();
    Run([&](editing::Editor& editor) { ShellOpenFile(editor, command); });
}

void MainWindow::TakeHandOver(const QString& commandLine) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    ShellOpen(commandLine);
}

void MainWindow::OpenPath(const QString& path) {
    ShellOpen('"' + path + '"');
}

void MainWindow::ImportFiles(const QStringList& files) {
    for (const QString& file : files) {
        const std::filesystem::path path = QFile::encodeName(file).toStdString();
        Run([&](editing::Editor& editor) { ImportFile(editor, path); });
    }
}

void MainWindow::ImportDroppedPicture(const QImage& picture) {
    QTemporaryFile file(QDir::tempPath() + "/orbelle-XXXXXX.png");
    if (file.open() && picture.save(&file, "PNG"))
        ImportFiles({file.fileName()});
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    closeTips_->Place();
}

void MainWindow::StartWelcome() {
    welcome_->Start();
}

void MainWindow::ShowAbout() {
    auto* about = new WelcomeWindow;
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->move(geometry().center() - about->rect().center());
    about->show();
    about->activateWindow();
}

void MainWindow::Paste() {
    const QStringList files = SystemClipboardFiles();
    if (files.isEmpty())
        Run(editing::PasteFromClipboard);
    else
        ImportFiles(files);
}

void MainWindow::FocusScene() {
    scene_->setFocus();
}

void MainWindow::ShowOrderMenu() {
    PopUpOrderMenu(bars_->LayerBar->mapToGlobal(
        bars_->LayerBar->ButtonRect(editing::layer_buttons::SetOrder).bottomLeft()));
}

// Shown, not run: whatever led here ends first.
void MainWindow::PopUpOrderMenu(const QPoint& at) {
    ControlsChanged();
    menu_->OrderMenu().popup(at);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    bool closes = false;
    Run([&](editing::Editor& editor) { closes = RunSavePrompt(editor); });
    if (!closes) {
        event->ignore();
        return;
    }
    welcome_->Stop();
    tips_->Stop();
    zoomTimer_.stop();
    StoreSettings();
}

}  // namespace orbelle::app
