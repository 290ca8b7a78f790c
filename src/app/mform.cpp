#include "app/mform.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTemporaryFile>
#include <QVBoxLayout>
#include <algorithm>

#include "app/bottom_panel.h"
#include "app/close_tips_tab.h"
#include "app/file_dialog.h"
#include "app/form_icon.h"
#include "app/frm_gif.h"
#include "app/frm_page.h"
#include "app/frm_prompt.h"
#include "app/frm_welcome.h"
#include "app/message_boxes.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/settings.h"
#include "app/shortcuts.h"
#include "app/system_clipboard.h"
#include "editing/color_wells.h"
#include "editing/command_frame.h"
#include "editing/document_commands.h"
#include "editing/menu_state.h"
#include "editing/scene_input.h"
#include "editing/tips.h"
#include "editing/tool_palette.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

constexpr int kStatusMilliseconds = 8000;
constexpr int kZoomTickMilliseconds = 1;
constexpr int kScrollPositions = 10;  // the scene scrolls in tenths
constexpr int kRightPanelWidth = 248;
constexpr int kWheelStep = 120;  // of a wheel's notch

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
    bars_ = std::make_unique<ToolBars>(*this);
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
    clipboardHasPicture_ = SystemClipboardHasPicture();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        clipboardHasPicture_ = SystemClipboardHasPicture();
        ControlsChanged();
    });
    statusBar()->setSizeGripEnabled(false);

    mForm::SceneChanged();
    mForm::LayerPanelChanged();
    mForm::ControlsChanged();
    mForm::TitleChanged();
}

void mForm::AddPanels() {
    auto* central = new QWidget;
    central->setObjectName("central");
    auto* rows = new QVBoxLayout(central);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(bars_->ToolBarvs1);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    rows->addLayout(middle, 1);
    middle->addWidget(bars_->ToolBarvs2, 0, Qt::AlignTop);
    middle->addWidget(MakeScene(), 1);
    rightPanel_ = new RightPanel(*this, *bars_->ToolBarvs4);
    auto* scroller = new QScrollArea;
    scroller->setObjectName("RightScroller");
    scroller->setWidget(rightPanel_);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFixedWidth(kRightPanelWidth);
    scroller->setFocusPolicy(Qt::NoFocus);
    middle->addWidget(scroller);
    bottomPanel_ = new BottomPanel(*this);
    rows->addWidget(bottomPanel_);
    setCentralWidget(central);

    for (widgets::ToolBarvs* popup : {bars_->ToolBarvs3, bars_->ToolBarvs5, bars_->ToolBarvs6})
        popup->setParent(central);
    closeTips_ = new CloseTipsTab(*bottomPanel_);
    tips_ = std::make_unique<TipBalloons>(
        editor_, *central,
        [this](editing::TipPlace place, QSize size) { return TipPlacement(place, size); });
    connect(tips_.get(), &TipBalloons::BalloonClicked, closeTips_, &CloseTipsTab::SlideUp);
    welcome_ = std::make_unique<WelcomeSequence>(*scene_);
    connect(welcome_.get(), &WelcomeSequence::Read, this,
            [this] { ShowTips(editing::tips::Welcome, false); });
}

QWidget* mForm::MakeScene() {
    auto* frame = new QWidget;
    auto* layout = new QGridLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
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
    return frame;
}

void mForm::ConnectScene() {
    scene_->setFocus();
    connect(scene_, &SceneView::Resized, this, [this](int width, int height) {
        RunGuarded([=](editing::Editor& editor) { ResizeScene(editor, width, height); });
    });
    connect(scene_, &SceneView::ZoomInWanted, this, [this](const QPointF& at) {
        Run([at](editing::Editor& editor) {
            ZoomInAt(editor, static_cast<float>(at.x()), static_cast<float>(at.y()));
        });
    });
    connect(scene_, &SceneView::ZoomOutWanted, this, [this](const QPointF& at) {
        Run([at](editing::Editor& editor) {
            ZoomOutAt(editor, static_cast<float>(at.x()), static_cast<float>(at.y()));
        });
    });
    connect(scene_, &SceneView::Scrolled, this, [this](const QPoint& delta) {
        hs1_->setValue(hs1_->value() - delta.x() * hs1_->singleStep() / kWheelStep);
        vs1_->setValue(vs1_->value() - delta.y() * vs1_->singleStep() / kWheelStep);
    });
    connect(scene_, &SceneView::PointerPressed, this, [this](const editing::Pointer& pointer) {
        Run([&](editing::Editor& editor) { PressScene(editor, pointer); });
    });
    connect(scene_, &SceneView::PointerMoved, this, [this](const editing::Pointer& pointer) {
        RunGuarded([&](editing::Editor& editor) { MoveScene(editor, pointer); });
        pointerStatus_->ShowPointer(editor_, pointer.X, pointer.Y);
    });
    connect(scene_, &SceneView::PointerReleased, this, [this](const editing::Pointer& pointer) {
        RunGuarded([&](editing::Editor& editor) { ReleaseScene(editor, pointer); });
    });
    connect(scene_, &SceneView::PointerLeft, this, [this] {
        pointerStatus_->ClearPointer();
        editor_.Overlays.Shape2.Visible = false;
        OverlaysChanged();
    });
    connect(scene_, &SceneView::KeyPressed, this, [this](int key) {
        Run([key](editing::Editor& editor) { KeyDownScene(editor, key); });
    });
    // Queued: the program that the files come from waits until the drop has been taken.
    connect(scene_, &SceneView::FilesDropped, this, &mForm::ImportFiles, Qt::QueuedConnection);
    connect(scene_, &SceneView::PictureDropped, this, &mForm::ImportDroppedPicture,
            Qt::QueuedConnection);
    connect(hs1_, &QScrollBar::valueChanged, this, [this](int value) {
        Run([=](editing::Editor& editor) { ScrollHorizontally(editor, value); });
    });
    connect(vs1_, &QScrollBar::valueChanged, this, [this](int value) {
        Run([=](editing::Editor& editor) { ScrollVertically(editor, value); });
    });
}

void mForm::AddShortcuts() {
    for (const Shortcut& shortcut : WindowShortcuts()) {
        auto* action = new QAction(shortcut.Caption, this);
        action->setShortcuts(shortcut.Keys);
        connect(action, &QAction::triggered, this,
                [this, command = shortcut.Command] { Run(command); });
        addAction(action);
    }
}

void mForm::Run(const EditorCommand& command) {
    statusBar()->clearMessage();
    RunGuarded(command);
}

void mForm::RunGuarded(const EditorCommand& command) {
    const std::string failure = editing::Guarded([&] { command(editor_); });
    if (!failure.empty())
        ShowMessage(failure);
}

void mForm::ShellOpen(const QString& commandLine) {
    const std::string command = QFile::encodeName(commandLine).toStdString();
    Run([&](editing::Editor& editor) { ShellOpenFile(editor, command); });
}

void mForm::TakeHandOver(const QString& commandLine) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    ShellOpen(commandLine);
}

void mForm::OpenPath(const QString& path) {
    ShellOpen('"' + path + '"');
}

void mForm::ImportFiles(const QStringList& files) {
    for (const QString& file : files) {
        const std::filesystem::path path = QFile::encodeName(file).toStdString();
        Run([&](editing::Editor& editor) { ImportFile(editor, path); });
    }
}

void mForm::ImportDroppedPicture(const QImage& picture) {
    QTemporaryFile file(QDir::tempPath() + "/orbelle-XXXXXX.png");
    if (file.open() && picture.save(&file, "PNG"))
        ImportFiles({file.fileName()});
}

void mForm::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    closeTips_->Place();
}

void mForm::StartWelcome() {
    welcome_->Start();
}

void mForm::ShowAbout() {
    auto* about = new FrmWelcome;
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->move(geometry().center() - about->rect().center());
    about->show();
    about->activateWindow();
}

void mForm::FocusScene() {
    scene_->setFocus();
}

void mForm::SetTipsEnabled(bool enabled) {
    tips_->TipsEnabled = enabled;
    menu_->ShowTipsState(enabled);
}

void mForm::ShowTips(int tip, bool showLayerTips) {
    tips_->ShowTips(tip, showLayerTips);
}

void mForm::HideTips() {
    tips_->HideFirst();
}

void mForm::CloseTips() {
    if (tips_->CtlTips1().isHidden())
        return;
    tips_->CtlTips1().hide();
    editor_.TipCounter = editing::kTipsExpired;
}

// Only where what a tip points at can be seen.
std::optional<QPoint> mForm::TipPlacement(editing::TipPlace place, QSize balloon) const {
    using editing::TipPlace;
    const QWidget* central = centralWidget();
    const auto at = [central](const QWidget& widget) {
        return widget.mapTo(central, QPoint(0, 0));
    };
    const int belowBar = bars_->ToolBarvs1->geometry().bottom() + 4;
    const bool layers = rightPanel_->IsLayerListVisible();
    const QPoint scene = at(*scene_);
    const QPoint page(graphics::RoundToEven(document::PageOffsetX(editor_.Document, editor_.View)),
                      graphics::RoundToEven(document::PageOffsetY(editor_.Document, editor_.View)));
    switch (place) {
        case TipPlace::NewAndOpenButtons:
            return QPoint(8, belowBar);
        case TipPlace::ImportButton:
            return QPoint(120, belowBar);
        case TipPlace::UndoButtons:
            return QPoint(230, belowBar);
        case TipPlace::LayerMiddle: {
            if (!editor_.Document.HasSelection())
                return lastLayerMiddle_;
            const graphics::RectF& rect = editor_.Document.Selected().Rect;
            const double zoom = editor_.View.Zoom;
            const auto middle = [zoom](float start, float length) {
                return (start + graphics::RoundToEven(length) / 2) * zoom;
            };
            lastLayerMiddle_ = QPoint(
                graphics::RoundToEven(scene.x() + page.x() + middle(rect.X, rect.Width) - 35),
                graphics::RoundToEven(scene.y() + page.y() + middle(rect.Y, rect.Height)));
            return lastLayerMiddle_;
        }
        case TipPlace::PageCorner:
            return scene + page;
        case TipPlace::OpacitySlider: {
            const QWidget& slider = rightPanel_->OpacitySlider();
            if (!layers || !slider.isVisible())
                return std::nullopt;
            return at(slider) + QPoint(0, slider.height());
        }
        case TipPlace::ToolColumn:
            if (!layers)
                return std::nullopt;
            return at(*bars_->ToolBarvs2) + QPoint(-10, 248);
        case TipPlace::AddLayerButton:
            if (!layers)
                return std::nullopt;
            return at(*bars_->ToolBarvs4) + QPoint(-15, 10 - balloon.height());
        case TipPlace::ColorWells:
        case TipPlace::BrushOptions: {
            const int lower = place == TipPlace::ColorWells ? 40 : 30;
            return QPoint(at(bottomPanel_->FirstColorWell()).x() - 25,
                          at(*bottomPanel_).y() - balloon.height() +
                              bottomPanel_->CtlTitle4().height() + lower);
        }
    }
    return std::nullopt;
}

void mForm::SlideBrushPanel() {
    bottomPanel_->SlideBrush(editor_.Controls.BrushPanelOpen);
}

void mForm::ShowOrderMenu() {
    PopUpOrderMenu(bars_->ToolBarvs4->mapToGlobal(
        bars_->ToolBarvs4->ButtonRect(editing::layer_buttons::SetOrder).bottomLeft()));
}

void mForm::ShowLayerMenu(float x, float y) {
    PopUpOrderMenu(scene_->mapToGlobal(QPoint(static_cast<int>(x), static_cast<int>(y))));
}

// Shown, not run: whatever led here ends first.
void mForm::PopUpOrderMenu(const QPoint& at) {
    ControlsChanged();
    menu_->OrderMenu().popup(at);
}

void mForm::RestoreSettings() {
    RestoreMainWindow(*this);
    const Settings settings;
    const auto number = [&](const char* name) { return settings.value(name).toInt(); };
    bottomPanel_->SetOpen(number("isQuick") != 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        rightPanel_->SetOpen(header, number(header.Name) != 0);
    editing::ChangeBrushOpacity(editor_, number("CtlScroll22"));
    editing::ChangeBrushSize(editor_, number("CtlScroll23"));
    SetTipsEnabled(number("TipsControl") == 1);
    for (int i = 0; i < 2; ++i)
        SetWellColor(editor_, i, ReadColor(settings, QString("ForeColor%1").arg(i)));
}

void mForm::StoreSettings() const {
    StoreMainWindow(*this);
    Settings settings;
    const auto flag = [](bool open) { return open ? -1 : 0; };
    settings.setValue("isQuick", flag(!bottomPanel_->CtlTitle4().isClosed()));
    settings.setValue("TipsControl", TipsEnabled() ? 1 : 0);
    for (const RightPanel::Header& header : rightPanel_->Headers())
        settings.setValue(header.Name, flag(!header.Title->isClosed()));
    settings.setValue("CtlScroll22", editor_.Controls.CtlScroll22.Value);
    settings.setValue("CtlScroll23", editor_.Controls.CtlScroll23.Value);
    for (std::size_t i = 0; i < 2; ++i)
        WriteColor(settings, QString("ForeColor%1").arg(i), editor_.Colors[i]);
}

void mForm::SceneChanged() {
    if (editor_.DocumentExists)
        welcome_->Stop();
    pointerStatus_->ShowZoom(editor_.DocumentExists ? editor_.View.Zoom : 0);
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
    bars_->ShowStates(editor_.Controls);
    rightPanel_->ShowStates(editor_.Controls);
    bottomPanel_->ShowStates(editor_);
    scene_->ShowCursor();
}

void mForm::OverlaysChanged() {
    scene_->update();
}

void mForm::LayerPanelChanged() {
    layersTimer_.start(0);
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
    welcome_->Stop();
    tips_->Stop();
    zoomTimer_.stop();
    StoreSettings();
}

}  // namespace orbelle::app
