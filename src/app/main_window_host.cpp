// What the editor tells the main window, and what is asked of the user.
#include "app/main_window.h"

#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <algorithm>
#include <cmath>

#include "app/bottom_panel.h"
#include "app/color_dialog.h"
#include "app/core_words.h"
#include "app/file_dialog.h"
#include "app/findings_list.h"
#include "app/fit_dialog.h"
#include "app/gif_optimizer_dialog.h"
#include "app/hotspot_dialog.h"
#include "app/icon_images_dialog.h"
#include "app/icon_sets_dialog.h"
#include "app/links.h"
#include "app/message_boxes.h"
#include "app/new_icon_dialog.h"
#include "app/right_panel.h"
#include "app/save_prompt.h"
#include "app/scene_view.h"
#include "app/sizes_panel.h"
#include "app/start_view.h"
#include "app/suggest_dialog.h"
#include "app/svg_size_dialog.h"
#include "app/system_clipboard.h"
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

constexpr int kStatusMilliseconds = 8000;
constexpr int kScrollPositions = 10;  // the scene scrolls in tenths

void MirrorBar(QScrollBar& shown, const document::ScrollBar& bar, int sceneSize) {
    const QSignalBlocker notTheUser(&shown);
    shown.setRange(0, bar.Max);
    shown.setPageStep(sceneSize);
    shown.setSingleStep(std::max(bar.Max / kScrollPositions, 1));
    shown.setValue(bar.Value);
    shown.setVisible(bar.Visible);
}

}  // namespace

void MainWindow::Changed(const editing::Changes& changes) {
    if (recovery_)
        recovery_->Note(editor_, changes);
    if (changes.Pixels || changes.Scene)
        ShowScene();
    pointerStatus_->ShowDrag(editor_);
    if (changes.Stack)
        layersTimer_.start(0);
    if (changes.Controls)
        ShowControls();
    if (changes.Overlays)
        scene_->update();
    sizesPanel_->Follow(changes);
    if (changes.Title)
        ShowTitle();
    if (editor_.Zoom.IsAnimated && !zoomAnimation_.isActive())
        zoomAnimation_.start();
    if (changes.HideTips)
        tips_->HideFirst();
    if (changes.ExpireTips)
        tips_->Expire();
    if (changes.Tip)
        tips_->Show(*changes.Tip);
    if (changes.LayerMenu)
        PopUpOrderMenu(scene_->mapToGlobal(
            scene_->FromScene(QRectF(changes.LayerMenu->X, changes.LayerMenu->Y, 0, 0))
                .topLeft()
                .toPoint()));
    message_ = changes.Message;
}

bool MainWindow::IsAtRest() const {
    return !IsZoomAnimationRunning() && sizesPanel_->IsAtRest() && startView_->IsAtRest();
}

void MainWindow::ShowScene() {
    if (editor_.DocumentExists) {
        welcome_->Stop();
        startView_->hide();
    }
    pointerStatus_->ShowZoom(editor_.DocumentExists ? editor_.View.Zoom : 0);
    pointerStatus_->Refresh(editor_);
    bars_->ShowZoom(editor_);
    MirrorBar(*horizontalScroll_, editor_.View.HorizontalScroll, editor_.View.SceneWidth);
    MirrorBar(*verticalScroll_, editor_.View.VerticalScroll, editor_.View.SceneHeight);
    scene_->FollowSelection();
    scene_->update();
}

void MainWindow::TakeLooks() {
    const document::SceneLooks looks{.Ground = widgets::SceneColor().rgb(),
                                     .SmoothWhenSmall = true};
    editor_.AnimatesZoom = widgets::IsMotionWanted();
    editor_.OpeningZoom = std::max(std::floor(scene_->devicePixelRatioF()), 1.0);
    if (editor_.Looks == looks)
        return;
    editor_.Looks = looks;
    RunDuringDrag([](editing::Editor& editor) { editor.Changed.Scene = true; });
}

void MainWindow::ShowControls() {
    menu_->ShowStates(editor_);
    menu_->ShowCheckState(sizesPanel_->IsCheckShown());
    bars_->ShowStates(editor_);
    rightPanel_->ShowStates(editor_.Sliders);
    bottomPanel_->ShowStates(editor_);
    pointerStatus_->ShowHint(editor_);
    scene_->ShowCursor();
}

void MainWindow::ShowPixelGrid(bool shown) {
    scene_->ShowPixelGrid(shown);
    menu_->ShowPixelGridState(shown);
}

void MainWindow::TogglePixelGrid() {
    ShowPixelGrid(!scene_->IsPixelGridShown());
}

void MainWindow::ToggleCheck() {
    const bool shown = !sizesPanel_->IsCheckShown();
    sizesPanel_->ShowCheck(shown);
    if (shown)
        sizesPanel_->Findings().setFocus();
    else
        FocusScene();
    ShowControls();
}

void MainWindow::ShowTitle() {
    QString title = editor_.Document.Path.empty() ? TranslatedText(editor_.Title)
                                                  : QString::fromStdString(editor_.Title);
    // Qt would take "[*]" in a file's name for its mark of a changed document.
    setWindowTitle(title.replace("[*]", "[*][*]"));
}

void MainWindow::ShowMessage(const std::string& text) {
    ShowPlainMessage(this, text);
}

void MainWindow::ShowAddress(const std::string& text, const std::string& address) {
    ShowMessageToCopy(this, text, address);
}

void MainWindow::ShowFolder(const std::string& text, const std::filesystem::path& folder) {
    if (OfferFolder(this, text))
        OpenFolder(context_, folder);
}

void MainWindow::ShowStatus(const std::string& text) {
    statusBar()->showMessage(QString::fromStdString(text), kStatusMilliseconds);
}

bool MainWindow::GoOn(int done, int count, const std::string& doing) {
    return progress_.GoOn(done, count, doing);
}

void MainWindow::DoMeanwhile(const std::function<void()>& work) {
    progress_.DoMeanwhile(work);
}

SavePromptAnswer MainWindow::AskSave() {
    SavePrompt prompt(this);
    prompt.exec();
    return prompt.Value();
}

std::optional<PageSize> MainWindow::AskPageSize() {
    NewIconDialog page(this);
    if (page.exec() != QDialog::Accepted)
        return std::nullopt;
    return page.Size();
}

std::filesystem::path MainWindow::AskFile(const std::string& filter) {
    return AskForFile(this, filter);
}

std::filesystem::path MainWindow::AskFileToWrite(const std::string& filter,
                                                 const std::filesystem::path& proposed) {
    return AskForFileToWrite(this, filter, proposed);
}

std::optional<int> MainWindow::AskGifThreshold(const graphics::Bitmap& surface) {
    GifOptimizerDialog optimizer(surface, this);
    if (optimizer.exec() != QDialog::Accepted)
        return std::nullopt;
    return optimizer.OptimizeValue();
}

std::optional<formats::Hotspot> MainWindow::AskHotspot(const graphics::Bitmap& picture,
                                                       formats::Hotspot start) {
    HotspotDialog dialog(picture, start, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Choice();
}

std::optional<IconChoice> MainWindow::ChooseIconImages(
    const std::vector<formats::IconEntryImage>& offered, const IconQuestion& question) {
    IconImagesDialog dialog(offered, question, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Choice();
}

std::optional<int> MainWindow::AskSvgSide(const PageSize& own) {
    SvgSizeDialog dialog(own, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Side();
}

std::optional<bool> MainWindow::AskFit(const PageSize& picture, const PageSize& page) {
    FitDialog dialog(picture, page, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.FitsPage();
}

std::optional<filters::SizeRecipe> MainWindow::ChooseRecipe(const graphics::Bitmap& master,
                                                            int size) {
    SuggestDialog dialog(master, size, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Recipe();
}

std::optional<SetChoice> MainWindow::ChooseIconSets(const formats::SetSource& source,
                                                    const std::filesystem::path& folder) {
    IconSetsDialog dialog(source, folder, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Choice();
}

std::optional<graphics::Argb> MainWindow::AskColor(const ColorQuestion& question) {
    ColorDialog dialog(question, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Color();
}

void MainWindow::Put(const graphics::Bitmap& picture, const std::string& text) {
    SetSystemClipboard(picture, text);
}

bool MainWindow::HasPicture() {
    return clipboardHasPicture_;
}

graphics::Bitmap MainWindow::Picture() {
    return RequireReadable(SystemClipboardPicture());
}

std::string MainWindow::Text() {
    return SystemClipboardText();
}

bool MainWindow::Confirm(const std::string& text, const std::string& title) {
    return AskOkCancel(this, text, title);
}

}  // namespace orbelle::app
