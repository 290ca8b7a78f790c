// What the editor asks of the main window.
#include "app/main_window.h"

#include <QColorDialog>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <algorithm>

#include "app/bottom_panel.h"
#include "app/file_dialog.h"
#include "app/gif_optimizer_dialog.h"
#include "app/icon_images_dialog.h"
#include "app/message_boxes.h"
#include "app/new_icon_dialog.h"
#include "app/right_panel.h"
#include "app/save_prompt.h"
#include "app/scene_view.h"
#include "app/system_clipboard.h"
#include "editing/menu_state.h"

namespace orbelle::app {
namespace {

constexpr int kStatusMilliseconds = 8000;
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

void MainWindow::SceneChanged() {
    if (editor_.DocumentExists)
        welcome_->Stop();
    pointerStatus_->ShowZoom(editor_.DocumentExists ? editor_.View.Zoom : 0);
    MirrorBar(*horizontalScroll_, editor_.View.HorizontalScroll, editor_.View.SceneWidth);
    MirrorBar(*verticalScroll_, editor_.View.VerticalScroll, editor_.View.SceneHeight);
    scene_->update();
}

void MainWindow::LayerPanelChanged() {
    layersTimer_.start(0);
}

// The shortcuts of entries work without their menu ever having been opened.
void MainWindow::ControlsChanged() {
    OpenFileMenu(editor_);
    OpenEditMenu(editor_);
    OpenStyleMenu(editor_);
    menu_->ShowStates(editor_.Controls);
    bars_->ShowStates(editor_.Controls);
    rightPanel_->ShowStates(editor_.Controls);
    bottomPanel_->ShowStates(editor_);
    scene_->ShowCursor();
}

void MainWindow::OverlaysChanged() {
    scene_->update();
}

void MainWindow::TitleChanged() {
    // Qt would take "[*]" in a file's name for its mark of a changed document.
    setWindowTitle(QString::fromStdString(editor_.Title).replace("[*]", "[*][*]"));
}

void MainWindow::SetBusyPointer(bool busy) {
    if (busy && busyPointers_++ == 0)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else if (!busy && --busyPointers_ == 0)
        QGuiApplication::restoreOverrideCursor();
}

void MainWindow::StartZoomAnimation() {
    zoomTimer_.start();
}

void MainWindow::SlideBrushPanel() {
    bottomPanel_->SlideBrush(editor_.Controls.BrushPanelOpen);
}

void MainWindow::ShowLayerMenu(float x, float y) {
    PopUpOrderMenu(scene_->mapToGlobal(QPoint(static_cast<int>(x), static_cast<int>(y))));
}

void MainWindow::ShowMessage(const std::string& text) {
    const PlainPointer pointer(busyPointers_);
    ShowPlainMessage(this, text);
}

void MainWindow::ShowStatus(const std::string& text) {
    statusBar()->showMessage(QString::fromStdString(text), kStatusMilliseconds);
}

editing::SavePromptAnswer MainWindow::AskSave() {
    const PlainPointer pointer(busyPointers_);
    SavePrompt prompt(this);
    prompt.exec();
    return prompt.Value();
}

std::optional<editing::PageSize> MainWindow::AskPageSize() {
    const PlainPointer pointer(busyPointers_);
    NewIconDialog page(this);
    if (page.exec() != QDialog::Accepted)
        return std::nullopt;
    return page.Size();
}

std::filesystem::path MainWindow::ShowFileDialog(const std::string& filter, bool isOpen) {
    const PlainPointer pointer(busyPointers_);
    return AskForFile(this, filter, isOpen);
}

std::optional<int> MainWindow::AskGifThreshold(const graphics::Bitmap& surface) {
    const PlainPointer pointer(busyPointers_);
    GifOptimizerDialog optimizer(surface, this);
    if (optimizer.exec() != QDialog::Accepted)
        return std::nullopt;
    return optimizer.OptimizeValue();
}

std::optional<int> MainWindow::ChooseIconEntry(
    const std::vector<formats::IconEntryImage>& offered) {
    const PlainPointer pointer(busyPointers_);
    IconImagesDialog form(offered, this);
    if (form.exec() != QDialog::Accepted)
        return std::nullopt;
    return form.SelectedIndex();
}

std::optional<graphics::Argb> MainWindow::AskColor(graphics::Argb initial) {
    const PlainPointer pointer(busyPointers_);
    const QColor color = QColorDialog::getColor(QColor::fromRgb(initial), this);
    if (!color.isValid())
        return std::nullopt;
    return color.rgb();
}

void MainWindow::SetClipboard(const graphics::Bitmap& picture, const std::string& text) {
    SetSystemClipboard(picture, text);
}

bool MainWindow::ClipboardHasPicture() {
    return clipboardHasPicture_;
}

graphics::Bitmap MainWindow::ClipboardPicture() {
    return SystemClipboardPicture();
}

std::string MainWindow::ClipboardText() {
    return SystemClipboardText();
}

bool MainWindow::Confirm(const std::string& text, const std::string& title) {
    const PlainPointer pointer(busyPointers_);
    return AskOkCancel(this, text, title);
}

}  // namespace orbelle::app
