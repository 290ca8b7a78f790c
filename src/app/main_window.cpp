#include "app/main_window.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>
#include <QStatusBar>
#include <QTemporaryFile>

#include "app/ask_commands.h"
#include "app/bottom_panel.h"
#include "app/close_tips_tab.h"
#include "app/file_dialog.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/system_clipboard.h"
#include "app/welcome_window.h"
#include "editing/buttons.h"
#include "editing/clipboard_commands.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

constexpr int kZoomTickMilliseconds = 1;

}  // namespace

MainWindow::MainWindow() {
    setObjectName("MainWindow");
    menu_ = std::make_unique<MainMenu>(*this, context_);
    bars_ = std::make_unique<ButtonBars>(context_);
    pointerStatus_ = std::make_unique<PointerStatus>(*statusBar());
    AddPanels();
    ConnectScene();
    AddShortcuts();

    zoomAnimation_.setInterval(kZoomTickMilliseconds);
    connect(&zoomAnimation_, &QTimer::timeout, this, [this] {
        RunDuringDrag(editing::TickZoomAnimation);
        if (!editor_.Zoom.IsAnimated)
            zoomAnimation_.stop();
    });
    layersTimer_.setSingleShot(true);
    connect(&layersTimer_, &QTimer::timeout, this, [this] { rightPanel_->ShowLayers(editor_); });
    clipboardHasPicture_ = SystemClipboardHasPicture() || !SystemClipboardFiles().isEmpty();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        clipboardHasPicture_ = SystemClipboardHasPicture() || !SystemClipboardFiles().isEmpty();
        RunDuringDrag([](editing::Editor&) {});
    });
    statusBar()->setSizeGripEnabled(false);

    ShowScene();
    MainWindow::ShowControls();
    ShowTitle();
    layersTimer_.start(0);
}

// What fields and sliders still have to say comes first.
void MainWindow::BeginCommand() {
    bottomPanel_->CommitTyping();
    rightPanel_->EndRuns();
    statusBar()->clearMessage();
}

bool MainWindow::Run(const editing::Command& command) {
    BeginCommand();
    return Tell(editing::Run(editor_, command));
}

bool MainWindow::RunBusy(const editing::Command& command) {
    return Tell(Try(command));
}

editing::Outcome MainWindow::Try(const editing::Command& command) {
    BeginCommand();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    editing::Outcome outcome = editing::Run(editor_, command);
    QGuiApplication::restoreOverrideCursor();
    return outcome;
}

bool MainWindow::RunDuringDrag(const editing::Command& step) {
    return Tell(editing::RunDuringDrag(editor_, step));
}

bool MainWindow::Tell(const editing::Outcome& outcome) {
    const std::string text = outcome.Failed() ? outcome.Problem() : std::exchange(message_, {});
    if (!text.empty())
        ShowMessage(text);
    return !outcome.Failed();
}

void MainWindow::ShellOpen(const QString& commandLine) {
    OpenHandedOver(context_, EncodedName(commandLine));
}

void MainWindow::TakeHandOver(const QString& commandLine) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (!commandLine.isEmpty())
        ShellOpen(commandLine);
}

void MainWindow::OpenPath(const QString& path) {
    ShellOpen('"' + path + '"');
}

void MainWindow::ImportFiles(const QStringList& files) {
    for (const QString& file : files)
        ImportKnownFile(context_, EncodedName(file));
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
        RunBusy(editing::PasteFromClipboard);
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
    menu_->OrderMenu().popup(at);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!MayGiveUpDocument(context_)) {
        event->ignore();
        return;
    }
    welcome_->Stop();
    tips_->Stop();
    zoomAnimation_.stop();
    StoreSettings();
}

}  // namespace orbelle::app
