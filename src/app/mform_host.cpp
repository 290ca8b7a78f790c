// What the editor asks of the main window.
#include "app/mform.h"

#include <QColorDialog>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <algorithm>

#include "app/bottom_panel.h"
#include "app/file_dialog.h"
#include "app/form_icon.h"
#include "app/frm_gif.h"
#include "app/frm_page.h"
#include "app/frm_prompt.h"
#include "app/message_boxes.h"
#include "app/right_panel.h"
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

void mForm::SceneChanged() {
    if (editor_.DocumentExists)
        welcome_->Stop();
    pointerStatus_->ShowZoom(editor_.DocumentExists ? editor_.View.Zoom : 0);
    MirrorBar(*hs1_, editor_.View.Hs1, editor_.View.SceneWidth);
    MirrorBar(*vs1_, editor_.View.Vs1, editor_.View.SceneHeight);
    scene_->update();
}

void mForm::LayerPanelChanged() {
    layersTimer_.start(0);
}

// The shortcuts of entries work without their menu ever having been opened.
void mForm::ControlsChanged() {
    OpenFileMenu(editor_);
    OpenEditMenu(editor_);
    OpenStyleMenu(editor_);
    menu_->ShowStates(editor_.Controls);
    bars_->ShowStates(editor_.Controls);
    rightPanel_->ShowStates(editor_.Controls);
    bottomPanel_->ShowStates(editor_);
    scene_->ShowCursor();
}

void mForm::OverlaysChanged() {
    scene_->update();
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

void mForm::SlideBrushPanel() {
    bottomPanel_->SlideBrush(editor_.Controls.BrushPanelOpen);
}

void mForm::ShowLayerMenu(float x, float y) {
    PopUpOrderMenu(scene_->mapToGlobal(QPoint(static_cast<int>(x), static_cast<int>(y))));
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

}  // namespace orbelle::app
