#include "app/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QMenu>
#include <QStatusBar>
#include <QThread>
#include <utility>

#include "app/ask_commands.h"
#include "app/bottom_panel.h"
#include "app/close_tips_tab.h"
#include "app/core_words.h"
#include "app/file_names.h"
#include "app/import_files.h"
#include "app/outside_press.h"
#include "app/recent_files_menu.h"
#include "app/right_panel.h"
#include "app/save_commands.h"
#include "app/scene_view.h"
#include "app/system_clipboard.h"
#include "app/take_file.h"
#include "app/welcome_window.h"
#include "editing/buttons.h"
#include "editing/document_commands.h"
#include "editing/give_up.h"
#include "editing/selection_commands.h"
#include "editing/size_commands.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

constexpr int kRetryMilliseconds = 50;
constexpr int kZoomTickMilliseconds = 1;

}  // namespace

MainWindow::MainWindow() {
    setObjectName("MainWindow");
    editor_.ExportSettings.LeavesScratchPictures = true;
    editor_.ExportSettings.AddsArtworkSizes = true;
    editor_.OpensWhole = true;
    menu_ = std::make_unique<MainMenu>(*this, context_);
    (new RecentFilesMenu(context_, this))->Join(*findChild<QAction*>("OpenRecent"));
    bars_ = std::make_unique<ButtonBars>(context_);
    pointerStatus_ = std::make_unique<PointerStatus>(*statusBar());
    AddPanels();
    ConnectScene();
    AddShortcuts();
    new OutsidePress(*this);

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

    TakeLooks();
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
    return Tell(ReportOf(editing::Run(editor_, command)));
}

// One thing at a time: what is going on, then the tips, then the selection, then the size.
void MainWindow::GiveUp() {
    RunDuringDrag([this](editing::Editor& editor) {
        if (CancelInput(editor) || tips_->Close())
            return;
        if (editor.Selection.Exists())
            EndSelection(editor);
        else
            GoToPage(editor, document::Family::kMaster);
    });
}

bool MainWindow::RunBusy(const editing::Command& command) {
    return Tell(Try(command));
}

Report MainWindow::Try(const editing::Command& command) {
    BeginCommand();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const editing::Outcome outcome = editing::Run(editor_, command);
    QGuiApplication::restoreOverrideCursor();
    return ReportOf(outcome);
}

bool MainWindow::RunDuringDrag(const editing::Command& step) {
    return Tell(ReportOf(editing::RunDuringDrag(editor_, step)));
}

Report MainWindow::ReportOf(const editing::Outcome& outcome) {
    const std::string said = std::exchange(message_, {});
    return {outcome.Failed(),
            TranslatedText(outcome.Failed() ? outcome.Problem() : said).toStdString()};
}

bool MainWindow::Tell(const Report& report) {
    if (!report.Text.empty())
        ShowMessage(report.Text);
    return !report.Failed;
}

void MainWindow::ShellOpen(const QByteArray& commandLine) {
    OpenHandedOver(context_, commandLine.toStdString());
}

// What a dialog has led to goes on after it has closed, within the event that closed it: so the
// depth of event loops counts, not only what can be seen.
bool MainWindow::IsInCommand() const {
    return thread()->loopLevel() > 1 || progress_.IsShown() || QApplication::activeModalWidget();
}

bool MainWindow::IsFree() const {
    return isVisible() && !IsInCommand() && !QApplication::activePopupWidget() &&
           QGuiApplication::mouseButtons() == Qt::NoButton &&
           std::holds_alternative<std::monostate>(editor_.Drag);
}

void MainWindow::TakeHandOver(const QByteArray& commandLine) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    if (!commandLine.isEmpty())
        ShellOpen(commandLine);
}

void MainWindow::OpenPath(const QString& path) {
    ShellOpen('"' + BytesOf(PathOf(path)) + '"');
}

// A question may have come up since the drop.
void MainWindow::TakeDrop(const Drop& drop) {
    if (IsInCommand())
        QTimer::singleShot(kRetryMilliseconds, this, [=, this] { TakeDrop(drop); });
    else
        TakeDropped(context_, drop);
}

void MainWindow::StartWelcome() {
    if (!editor_.DocumentExists)
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
    const QByteArrayList files = SystemClipboardFiles();
    if (!files.isEmpty())
        ImportFiles(context_, PathsOf(files));
    else if (const TakeResult pasted = TakePasted(context_); !pasted.Text.empty())
        ShowMessage(pasted.Text);
}

// A control that went or was turned off under the keys leaves them to the picture, not to the next
// control.
bool MainWindow::focusNextPrevChild(bool next) {
    const QWidget* focus = focusWidget();
    if (!focus || (focus->isVisible() && focus->isEnabled()))
        return QMainWindow::focusNextPrevChild(next);
    FocusScene();
    return true;
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

bool MainWindow::MayEndSession(const std::function<bool()>& canAsk) {
    sessionEnd_ = SessionEnd::No;
    const bool isAsked = editor_.Document.Modified && canAsk();
    // One question at a time: the one that is open has to be answered first.
    if (isAsked && QApplication::activeModalWidget()) {
        QApplication::alert(this);
        return false;
    }
    if (isAsked && !MayGiveUpDocument(context_))
        return false;
    sessionEnd_ = editor_.Document.Modified && !isAsked ? SessionEnd::Unasked : SessionEnd::Agreed;
    if (recovery_)
        recovery_->Flush();
    StoreSettings();
    return true;
}

void MainWindow::CloseWindow() {
    sessionEnd_ = SessionEnd::No;
    close();
}

// The window system passes on what the user does; the end of the session comes from within.
void MainWindow::closeEvent(QCloseEvent* event) {
    const bool isSessionEnd = sessionEnd_ != SessionEnd::No && !event->spontaneous();
    if (!isSessionEnd && !MayGiveUpDocument(context_)) {
        event->ignore();
        return;
    }
    if (isSessionEnd && sessionEnd_ == SessionEnd::Unasked && recovery_)
        recovery_->EndAtOnce();
    welcome_->Stop();
    tips_->Stop();
    zoomAnimation_.stop();
    StoreSettings();
}

}  // namespace orbelle::app
