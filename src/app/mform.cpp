#include "app/mform.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QColorDialog>
#include <QFile>
#include <QGridLayout>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <algorithm>
#include <exception>
#include <new>

#include "app/file_dialog.h"
#include "app/form_icon.h"
#include "app/frm_gif.h"
#include "app/frm_page.h"
#include "app/frm_prompt.h"
#include "app/message_boxes.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "app/system_clipboard.h"
#include "editing/document_commands.h"
#include "editing/menu_state.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

constexpr int kStatusMilliseconds = 8000;
constexpr int kZoomTickMilliseconds = 1;
constexpr int kScrollPositions = 10;  // the scene scrolls in tenths

// The pointer of a dialog that a busy command shows.
class PlainPointer {
public:
    explicit PlainPointer(int busyPointers) : busy_(busyPointers > 0) {
        if (busy_)
            QGuiApplication::restoreOverrideCursor();
    }
    ~PlainPointer() {
        if (busy_)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;

private:
    bool busy_;
};

void MirrorBar(QScrollBar& shown, const document::ScrollBar& bar, int sceneSize) {
    const QSignalBlocker notTheUser(&shown);
    shown.setRange(0, bar.Max);
    shown.setPageStep(std::max(bar.LargeChange, sceneSize));
    shown.setSingleStep(std::max(bar.Max / kScrollPositions, 1));
    shown.setValue(bar.Value);
    shown.setVisible(bar.Visible);
}

}  // namespace

mForm::mForm() {
    setObjectName("mForm");
    menu_ = std::make_unique<MainMenu>(*this);
    AddScene();
    AddViewShortcuts();

    zoomTimer_.setInterval(kZoomTickMilliseconds);
    connect(&zoomTimer_, &QTimer::timeout, this, [this] {
        bool done = true;
        RunGuarded([&](editing::Editor& editor) { done = TickZoomAnimation(editor); });
        if (done)
            zoomTimer_.stop();
    });

    statusBar()->setSizeGripEnabled(false);
    statusBar()->hide();
    connect(statusBar(), &QStatusBar::messageChanged, this,
            [this](const QString& text) { statusBar()->setVisible(!text.isEmpty()); });

    clipboardHasPicture_ = SystemClipboardHasPicture();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        clipboardHasPicture_ = SystemClipboardHasPicture();
        ControlsChanged();
    });

    mForm::SceneChanged();
    mForm::ControlsChanged();
    mForm::TitleChanged();
}

void mForm::AddScene() {
    auto* centre = new QWidget;
    auto* layout = new QGridLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setCentralWidget(centre);

    scene_ = new SceneView(editor_);
    hs1_ = new QScrollBar(Qt::Horizontal);
    vs1_ = new QScrollBar(Qt::Vertical);
    hs1_->setAccessibleName("Horizontal position");
    vs1_->setAccessibleName("Vertical position");
    layout->addWidget(scene_, 0, 0);
    layout->addWidget(vs1_, 0, 1);
    layout->addWidget(hs1_, 1, 0);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    scene_->setFocus();

    connect(scene_, &SceneView::Resized, this, [this](int width, int height) {
        RunGuarded([=](editing::Editor& editor) { ResizeScene(editor, width, height); });
    });
    connect(scene_, &SceneView::ZoomInWanted, this, [this] { Run(editing::ZoomIn); });
    connect(scene_, &SceneView::ZoomOutWanted, this, [this] { Run(editing::ZoomOut); });
    // Queued: the program that the files come from waits until the drop has been taken.
    connect(scene_, &SceneView::FilesDropped, this, &mForm::ImportFiles, Qt::QueuedConnection);
    connect(hs1_, &QScrollBar::valueChanged, this, [this](int value) {
        Run([=](editing::Editor& editor) { ScrollHorizontally(editor, value); });
    });
    connect(vs1_, &QScrollBar::valueChanged, this, [this](int value) {
        Run([=](editing::Editor& editor) { ScrollVertically(editor, value); });
    });
}

void mForm::AddViewShortcuts() {
    const struct {
        const char* Caption;
        QList<QKeySequence> Shortcuts;
        EditorCommand Command;
    } views[] = {
        {"Zoom In", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, editing::ZoomIn},
        {"Zoom Out", {Qt::CTRL | Qt::Key_Minus}, editing::ZoomOut},
        {"Original Size", {Qt::CTRL | Qt::Key_0}, editing::OriginalSize},
    };
    for (const auto& view : views) {
        auto* action = new QAction(view.Caption, this);
        action->setShortcuts(view.Shortcuts);
        connect(action, &QAction::triggered, this,
                [this, command = view.Command] { Run(command); });
        addAction(action);
    }
}

void mForm::Run(const EditorCommand& command) {
    statusBar()->clearMessage();
    RunGuarded(command);
}

void mForm::RunGuarded(const EditorCommand& command) {
    std::string failure;
    try {
        command(editor_);
    } catch (const std::bad_alloc&) {
        failure = "There is not enough memory.";
    } catch (const std::exception& error) {
        failure = error.what();
    }
    if (!failure.empty())
        ShowMessage(failure);
}

void mForm::OpenPath(const QString& path) {
    const std::string command = '"' + QFile::encodeName(path).toStdString() + '"';
    Run([&](editing::Editor& editor) { ShellOpenFile(editor, command); });
}

void mForm::ImportFiles(const QStringList& files) {
    for (const QString& file : files) {
        const std::filesystem::path path = QFile::encodeName(file).toStdString();
        Run([&](editing::Editor& editor) { ImportFile(editor, path); });
    }
}

void mForm::SceneChanged() {
    MirrorBar(*hs1_, editor_.View.Hs1, editor_.View.SceneWidth);
    MirrorBar(*vs1_, editor_.View.Vs1, editor_.View.SceneHeight);
    scene_->update();
}

// The shortcuts of entries work without their menu ever having been opened.
void mForm::ControlsChanged() {
    OpenFileMenu(editor_);
    OpenEditMenu(editor_);
    OpenStyleMenu(editor_);
    menu_->ShowStates(editor_.Controls);
}

void mForm::TitleChanged() {
    // Qt would take "[*]" in a file's name for its mark of a changed document.
    setWindowTitle(QString::fromStdString(editor_.Title).replace("[*]", "[*][*]"));
}

void mForm::SetBusyPointer(bool busy) {
    if (busy && busyPointers_++ == 0)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else if (!busy && --busyPointers_ == 0)
        QGuiApplication::restoreOverrideCursor();
}

void mForm::StartZoomAnimation() {
    zoomTimer_.start();
}

void mForm::ShowMessage(const std::string& text) {
    const PlainPointer pointer(busyPointers_);
    ShowPlainMessage(this, text);
}

void mForm::ShowStatus(const std::string& text) {
    statusBar()->showMessage(QString::fromStdString(text), kStatusMilliseconds);
}

editing::SavePromptAnswer mForm::AskSave() {
    const PlainPointer pointer(busyPointers_);
    FrmPrompt prompt(this);
    prompt.exec();
    return prompt.Value();
}

std::optional<editing::PageSize> mForm::AskPageSize() {
    const PlainPointer pointer(busyPointers_);
    FrmPage page(this);
    if (page.exec() != QDialog::Accepted)
        return std::nullopt;
    return page.Size();
}

std::filesystem::path mForm::ShowFileDialog(const std::string& filter, bool isOpen) {
    const PlainPointer pointer(busyPointers_);
    return AskForFile(this, filter, isOpen);
}

std::optional<int> mForm::AskGifThreshold(const graphics::Bitmap& surface) {
    const PlainPointer pointer(busyPointers_);
    FrmGIF optimizer(surface, this);
    if (optimizer.exec() != QDialog::Accepted)
        return std::nullopt;
    return optimizer.OptimizeValue();
}

std::optional<int> mForm::ChooseIconEntry(const std::vector<formats::IconEntryImage>& offered) {
    const PlainPointer pointer(busyPointers_);
    FormIcon form(offered, this);
    if (form.exec() != QDialog::Accepted)
        return std::nullopt;
    return form.SelectedIndex();
}

std::optional<graphics::Argb> mForm::AskColor(graphics::Argb initial) {
    const PlainPointer pointer(busyPointers_);
    const QColor color = QColorDialog::getColor(QColor::fromRgb(initial), this);
    if (!color.isValid())
        return std::nullopt;
    return color.rgb();
}

void mForm::SetClipboard(const graphics::Bitmap& picture, const std::string& text) {
    SetSystemClipboard(picture, text);
}

bool mForm::ClipboardHasPicture() {
    return clipboardHasPicture_;
}

graphics::Bitmap mForm::ClipboardPicture() {
    return SystemClipboardPicture();
}

std::string mForm::ClipboardText() {
    return SystemClipboardText();
}

bool mForm::Confirm(const std::string& text, const std::string& title) {
    const PlainPointer pointer(busyPointers_);
    return AskOkCancel(this, text, title);
}

void mForm::closeEvent(QCloseEvent* event) {
    bool closes = false;
    Run([&](editing::Editor& editor) { closes = RunSavePrompt(editor); });
    if (!closes) {
        event->ignore();
        return;
    }
    zoomTimer_.stop();
    StoreMainWindow(*this);
}

}  // namespace orbelle::app
