#include "window_states.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>

#include "app/color_dialog.h"
#include "app/findings_list.h"
#include "app/fit_dialog.h"
#include "app/gif_optimizer_dialog.h"
#include "app/hotspot_dialog.h"
#include "app/icon_images_dialog.h"
#include "app/icon_sets_dialog.h"
#include "app/main_window.h"
#include "app/message_boxes.h"
#include "app/new_icon_dialog.h"
#include "app/recent_files.h"
#include "app/recovery_dialog.h"
#include "app/right_panel.h"
#include "app/run_progress.h"
#include "app/save_prompt.h"
#include "app/settings.h"
#include "app/sizes_panel.h"
#include "app/suggest_dialog.h"
#include "app/svg_size_dialog.h"
#include "app/welcome_window.h"
#include "editing/buttons.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "editing/size_commands.h"
#include "editing/tool_palette.h"
#include "editing/view_commands.h"
#include "filters/shrink_to_size.h"
#include "formats/export_icon.h"
#include "formats/icon_reader.h"
#include "formats/journal_file.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "support/hands.h"
#include "support/temporary_folder.h"
#include "waiting.h"
#include "widgets/button_bar.h"
#include "widgets/layer_list.h"
#include "widgets/panel_header.h"
#include "widgets/track_slider.h"

namespace orbelle::app {
namespace {

using testing::WaitUntil;
using Look = std::function<void(const QString& name, QWidget& shown)>;

constexpr QSize kUsualSize(1100, 760);
constexpr QSize kLargeSize(1920, 1080);
constexpr int kFadeMilliseconds = 600;  // until the welcome text stands
constexpr float kLargestZoom = 20;
constexpr std::int64_t kSomeTime = 1'764'000'000'000;

class Tour {
public:
    Tour(const QString& samples, const Look& look) : samples_(samples), look_(look) {}

    void Run() {
        Settings().clear();
        LookAtStarts();
        LookAtDocuments();
        LookAtHands();
        LookAtMenus();
        LookAtDialogs();
    }

private:
    void LookAt(const QString& name, QWidget& shown) {
        QApplication::processEvents();
        static const QRegularExpression others("[^a-z0-9]+");
        look_(name.toLower().replace(others, "-"), shown);
    }
    void LookAtWindow(const QString& name) {
        WaitUntil([&] { return window_->IsAtRest(); });
        LookAt(name, *window_);
    }
    void MakeWindow(const QSize& size) {
        window_ = std::make_unique<MainWindow>();
        window_->RestoreSettings();
        window_->resize(size);
        window_->show();
    }
    void OpenSample(const QString& name) { window_->OpenPath(samples_ + '/' + name); }

    void LookAtStarts() {
        MakeWindow(kUsualSize);
        LookAtWindow("empty");
        window_->StartWelcome();
        const QDeadlineTimer fade(kFadeMilliseconds);
        WaitUntil([&] { return fade.hasExpired(); });
        LookAtWindow("first-start");
        LookAtRecentFiles();
        OpenSample("ok-badge.volf");
        LookAtWindow("tips");
        window_->SetTipsEnabled(false);
        window_->StoreSettings();
    }

    void LookAtRecentFiles() {
        RecentFiles files;
        files.Restore();
        for (const char* name :
             {"glass-folder.volf", "ok-badge.volf", "envelope.volf", "none.volf"})
            files.Note((samples_ + '/' + name).toStdString());
        MakeWindow(kUsualSize);
        LookAtWindow("empty-recent");
        window_->findChild<QWidget*>("StartOpen")->setFocus();
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(samples_ + "/envelope.volf")});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &enter);
        LookAtWindow("empty-drag");
        QDragLeaveEvent leave;
        QApplication::sendEvent(window_.get(), &leave);
        for (const QSize& size : {QSize(800, 560), window_->minimumSizeHint()}) {
            window_->resize(size);
            LookAtWindow(QString("empty-%1").arg(size.height()));
        }
        window_->resize(kUsualSize);
        files.Clear();
    }

    void LookAtDocuments() {
        OpenSample("envelope.volf");
        LookAtWindow("document-256");
        window_->resize(window_->minimumSizeHint());
        LookAtWindow("minimum");
        window_->resize(kLargeSize);
        LookAtWindow("maximum");
        window_->resize(kUsualSize);
        for (const int size : {16, 24}) {
            window_->Run([size](editing::Editor& editor) { GoToPage(editor, size); });
            LookAtWindow(QString("size-%1").arg(size));
        }
        auto& sizes = *window_->findChild<SizesPanel*>();
        for (const int ground : {1, 2, 3, 4}) {
            sizes.SetGround(ground);
            LookAtWindow(QString("strip-%1").arg(ground));
        }
        sizes.SetGround(0);
        window_->findChild<QAction*>("CheckIcon")->trigger();
        LookAtWindow("check");
        window_->findChild<QAction*>("CheckIcon")->trigger();
        for (widgets::PanelHeader* header : window_->findChildren<widgets::PanelHeader*>()) {
            const bool wasClosed = header->IsClosed();
            header->click();
            LookAtWindow((wasClosed ? "open-" : "closed-") + header->text());
            header->click();
        }
        const graphics::Bitmap picture = window_->Editor().Canvas;
        for (const int side : {16, 64, 256, 512}) {
            window_->Run([&](editing::Editor& editor) {
                OpenPicture(editor, filters::ScaleToSize(picture, side));
            });
            LookAtWindow(QString("page-%1").arg(side));
        }
        OpenSample("envelope.volf");
        window_->Run([](editing::Editor& editor) { ZoomAboutMiddle(editor, kLargestZoom); });
        LookAtWindow("zoom-20");
    }

    template <typename Widget>
    Widget& Part(const char* name) {
        return *window_->findChild<Widget*>(name);
    }
    static void Hover(QWidget& widget, const QPointF& place) {
        testing::SendMouse(widget, QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
    }
    // Controls below the pointer, held down, with the keys.
    void LookAtHands() {
        OpenSample("envelope.volf");
        window_->Run(
            [](editing::Editor& editor) { ChooseToolEntry(editor, editing::Tool::Pencil); });
        auto& bar = Part<widgets::ButtonBar>("MainBar");
        const QPointF first = bar.ButtonRect(1).center();
        Hover(bar, first);
        LookAtWindow("hand-hover-bar");
        for (const char* name : {"MainBar", "ToolBox", "LayerBar"}) {
            Part<QWidget>(name).setFocus(Qt::TabFocusReason);
            LookAtWindow(QString("hand-keys-") + name);
        }
        for (const char* name : {"ColorOpacity", "PageWidth", "OpacityPanel", "ExchangeColor",
                                 "ForeColorOLE0", "OpacityValue", "Sizes", "SizeStrip", "Layers"})
            if (auto* control = window_->findChild<QWidget*>(name)) {
                control->setFocus(Qt::TabFocusReason);
                LookAtWindow(QString("hand-keys-") + name);
            }
        auto& slider = Part<widgets::TrackSlider>("ColorOpacity");
        testing::Press(slider, QPointF(slider.width() / 2.0, slider.height() / 2.0));
        LookAtWindow("hand-slider-down");
        testing::Release(slider, QPointF(slider.width() / 2.0, slider.height() / 2.0));

        auto& list = Part<widgets::LayerList>("Layers");
        const QPointF row = list.PartPlace(0).center();
        testing::Press(*list.viewport(), row);
        testing::DragTo(*list.viewport(), list.PartPlace(list.PartCount() - 1).center());
        LookAtWindow("hand-drag-row");
        testing::Strike(list, Qt::Key_Escape);
        testing::Release(*list.viewport(), row);
        list.EyePressed(list.SelectedIndex());
        LookAtWindow("hidden-row");
        list.EyePressed(list.SelectedIndex());
        list.StartRename();
        LookAtWindow("rename-row");
        list.CommitName();
        window_->FocusScene();
    }

    void LookAtMenus() {
        OpenSample("envelope.volf");
        for (QMenu* menu : window_->menuBar()->findChildren<QMenu*>()) {
            menu->popup(window_->mapToGlobal(QPoint(60, 60)));
            LookAt("menu-" + menu->title().remove(QChar(0x26)), *menu);
            menu->close();
        }
        using editing::Tool;
        for (const auto& [tool, name] : {std::pair(Tool::FilledRectangle, "fill"),
                                         {Tool::SelectRectangle, "select"},
                                         {Tool::PencilEraser, "erase"},
                                         {Tool::Pencil, "pencil"}}) {
            window_->Run([tool = tool](editing::Editor& editor) { ChooseToolEntry(editor, tool); });
            LookAtWindow(QString("tool-") + name);
        }
        namespace buttons = editing::tool_buttons;
        for (const auto& [button, name] : {std::pair(buttons::Selection, "popup-select"),
                                           {buttons::Rectangle, "popup-fill"},
                                           {buttons::Eraser, "popup-erase"}}) {
            window_->Run(
                [button = button](editing::Editor& editor) { ClickToolButton(editor, button); });
            LookAtWindow(name);
        }
        window_->Run([](editing::Editor& editor) { ChooseToolEntry(editor, Tool::BrushEraser); });
        WaitUntil([&] { return Part<QWidget>("BrushPanel").y() == 0; });
        LookAtWindow("tool-brush");
        window_->statusBar()->showMessage("Exported icon.ico: 2.1 KB");
        LookAtWindow("status");
    }

    void LookAtDialog(const QString& name, QWidget& dialog) {
        dialog.show();
        LookAt("dialog-" + name, dialog);
    }
    void LookAtMessage(const QString& name, const std::function<void()>& show) {
        testing::AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            LookAt("message-" + name, box);
            box.reject();
        });
        show();
    }

    void LookAtDialogs() {
        const editing::Editor& editor = window_->Editor();
        const graphics::Bitmap picture = editor.Canvas;
        NewIconDialog newIcon(window_.get());
        LookAtDialog("new", newIcon);
        ColorDialog color({"Background", 0xFF3060C0, 0x803060C0, true}, window_.get());
        LookAtDialog("colour", color);
        GifOptimizerDialog gif(picture, window_.get());
        LookAtDialog("gif", gif);
        SuggestDialog suggest(picture, 16, window_.get());
        LookAtDialog("suggest", suggest);
        SvgSizeDialog svg({100, 60}, window_.get());
        LookAtDialog("svg-size", svg);
        FitDialog fit({4000, 3000}, {256, 256}, window_.get());
        LookAtDialog("fit", fit);
        HotspotDialog hotspot(picture, {4, 2}, window_.get());
        LookAtDialog("hot-spot", hotspot);
        IconSetsDialog sets(SetSourceOf(editor), "/home/ann/icons", window_.get());
        LookAtDialog("icon-set", sets);
        const testing::TemporaryFolder folder;
        const auto icon = folder / "a.ico";
        ExportIcon(icon, formats::IconKind::Windows, SetSourceOf(editor).Family);
        IconImagesDialog images(formats::ReadIconFile(icon), {false, true}, window_.get());
        LookAtDialog("icon-images", images);
        SavePrompt save(window_.get());
        LookAtDialog("save", save);
        WelcomeWindow about;
        LookAtDialog("about", about);
        save.findChild<QPushButton*>()->setDown(true);
        LookAtDialog("save-down", save);
        LookAtRecovery();
        LookAtProgress();
        QWidget* parent = window_.get();
        LookAtMessage("plain", [=] { ShowPlainMessage(parent, "The file can't be read."); });
        LookAtMessage("folder", [=] { OfferFolder(parent, "Exported 9 files, 120 KB"); });
        LookAtMessage("copy", [=] { ShowMessageToCopy(parent, "The address is", "x"); });
        LookAtMessage("question",
                      [=] { AskOkCancel(parent, "a.ico already exists, overwrite?", "Warning"); });
    }

    void LookAtRecovery() {
        const testing::TemporaryFolder folder;
        document::Document document = window_->Editor().Document;
        for (const char* name : {"", "/home/ann/icons/envelope.volf", "/home/ann/icons/a.volf"}) {
            document.Path = name;
            formats::JournalFile(folder / "journals").Keep(document, kSomeTime);
            std::vector<formats::FoundJournal> journals =
                formats::FindJournals(folder / "journals");
            RecoveryDialog dialog(journals, window_.get());
            LookAtDialog(QString("recovery-%1").arg(journals.size()), dialog);
        }
    }
    void LookAtProgress() {
        RunProgress progress(*window_);
        progress.GoOn(0, 9, {});
        WaitUntil([&] {
            progress.GoOn(4, 9, "Writing /home/ann/icons/envelope/512x512.png");
            return progress.IsShown();
        });
        for (QWidget* dialog : QApplication::topLevelWidgets())
            if (qobject_cast<QProgressDialog*>(dialog) && dialog->isVisible())
                LookAt("dialog-progress", *dialog);
    }

    const QString samples_;
    const Look look_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace

void ForEachWindowState(const QString& samples, const Look& look) {
    Tour(samples, look).Run();
}

}  // namespace orbelle::app
