// What the main window is made of, and how the scene is connected.
#include "app/main_window.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "app/ask_commands.h"
#include "app/bottom_panel.h"
#include "app/close_tips_tab.h"
#include "app/drop_target.h"
#include "app/right_panel.h"
#include "app/scene_view.h"
#include "app/shortcuts.h"
#include "app/sizes_panel.h"
#include "app/start_view.h"
#include "editing/nudge.h"
#include "editing/scene_input.h"
#include "editing/tips.h"
#include "editing/view_commands.h"
#include "widgets/soft_shadow.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

constexpr int kRightPanelWidth = 264;  // at least
constexpr int kWheelStep = 120;        // of a wheel's notch

// Scrolls up and down, and is as wide as what is in it asks for, beside the scroll bar.
class PanelScroller : public QScrollArea {
protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            setFixedWidth(
                std::max(kRightPanelWidth, widget()->minimumSizeHint().width() +
                                               style()->pixelMetric(QStyle::PM_ScrollBarExtent)));
        return QScrollArea::eventFilter(watched, event);
    }
};

}  // namespace

void MainWindow::AddPanels() {
    auto* central = new QWidget;
    central->setObjectName("central");
    auto* rows = new QVBoxLayout(central);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(bars_->MainBar);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    rows->addLayout(middle, 1);
    middle->addWidget(bars_->ToolBox, 0, Qt::AlignTop);
    auto* sceneColumn = new QVBoxLayout;
    sceneColumn->addWidget(MakeScene(), 1);
    sizesPanel_ = new SizesPanel(context_);
    sceneColumn->addWidget(sizesPanel_);
    auto* sceneAndSizes = new QWidget;
    sceneColumn->setContentsMargins(0, 0, 0, 0);
    sceneColumn->setSpacing(0);
    sceneAndSizes->setLayout(sceneColumn);
    middle->addWidget(sceneAndSizes, 1);
    rightPanel_ = new RightPanel(*this, *bars_->LayerBar);
    connect(rightPanel_, &RightPanel::KeysFree, this, &MainWindow::FocusScene);
    auto* scroller = new PanelScroller;
    scroller->setObjectName("RightScroller");
    scroller->setWidget(rightPanel_);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFixedWidth(kRightPanelWidth);
    scroller->setFocusPolicy(Qt::NoFocus);
    middle->addWidget(scroller);
    bottomPanel_ = new BottomPanel(context_);
    rows->addWidget(bottomPanel_);
    setCentralWidget(central);

    for (widgets::ButtonBar* popup : {bars_->FillBar, bars_->SelectionBar, bars_->EraserBar}) {
        popup->setParent(central);
        new widgets::SoftShadow(*popup);
    }
    closeTips_ = new CloseTipsTab(*central, *sizesPanel_, *horizontalScroll_);
    tips_ = std::make_unique<TipBalloons>(editor_, *central, *this);
    connect(tips_.get(), &TipBalloons::Placed, closeTips_,
            [this] { closeTips_->StepAsideFor(tips_->OpenBalloons()); });
    connect(tips_.get(), &TipBalloons::BalloonClicked, closeTips_, &CloseTipsTab::SlideUp);
    AddStart();
    welcome_ = std::make_unique<WelcomeSequence>(*scene_);
    connect(welcome_.get(), &WelcomeSequence::Read, this,
            [this] { tips_->Show({editing::tips::Welcome}); });
    connect(welcome_.get(), &WelcomeSequence::Shown, startView_, &StartView::MakeRoomForWelcome);
}

// Queued: what is chosen may take the button away that was clicked.
void MainWindow::AddStart() {
    startView_ = new StartView(recent_, *scene_);
    connect(
        startView_, &StartView::NewWanted, this, [this] { AskNew(context_); },
        Qt::QueuedConnection);
    connect(
        startView_, &StartView::OpenWanted, this, [this] { AskOpen(context_); },
        Qt::QueuedConnection);
    connect(
        startView_, &StartView::Wanted, this,
        [this](const std::filesystem::path& path) {
            FocusScene();
            OpenRecent(context_, path);
        },
        Qt::QueuedConnection);
}

QWidget* MainWindow::MakeScene() {
    auto* frame = new QWidget;
    auto* layout = new QGridLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    scene_ = new SceneView(editor_);
    horizontalScroll_ = new QScrollBar(Qt::Horizontal);
    verticalScroll_ = new QScrollBar(Qt::Vertical);
    horizontalScroll_->setAccessibleName(Words::tr("Horizontal position"));
    verticalScroll_->setAccessibleName(Words::tr("Vertical position"));
    for (QScrollBar* bar : {horizontalScroll_, verticalScroll_})
        bar->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(scene_, 0, 0);
    layout->addWidget(verticalScroll_, 0, 1);
    layout->addWidget(horizontalScroll_, 1, 0);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    return frame;
}

void MainWindow::ConnectScene() {
    scene_->setFocus();
    using editing::Editor;
    connect(scene_, &SceneView::LooksChanged, this, &MainWindow::TakeLooks);
    connect(scene_, &SceneView::Resized, this, [this](int width, int height) {
        RunDuringDrag([=](Editor& editor) { ResizeScene(editor, width, height); });
    });
    connect(scene_, &SceneView::ZoomInWanted, this, [this](const QPointF& at) {
        RunDuringDrag([at](Editor& editor) {
            ZoomInAt(editor, static_cast<float>(at.x()), static_cast<float>(at.y()));
        });
    });
    connect(scene_, &SceneView::ZoomOutWanted, this, [this](const QPointF& at) {
        RunDuringDrag([at](Editor& editor) {
            ZoomOutAt(editor, static_cast<float>(at.x()), static_cast<float>(at.y()));
        });
    });
    connect(scene_, &SceneView::Scrolled, this, [this](const QPoint& delta) {
        horizontalScroll_->setValue(horizontalScroll_->value() -
                                    delta.x() * horizontalScroll_->singleStep() / kWheelStep);
        verticalScroll_->setValue(verticalScroll_->value() -
                                  delta.y() * verticalScroll_->singleStep() / kWheelStep);
    });
    connect(scene_, &SceneView::PointerPressed, this, [this](const editing::Pointer& pointer) {
        Run([&](Editor& editor) { PressScene(editor, pointer); });
    });
    connect(scene_, &SceneView::PointerMoved, this, [this](const editing::Pointer& pointer) {
        RunDuringDrag([&](Editor& editor) { MoveScene(editor, pointer); });
        pointerStatus_->ShowPointer(editor_, pointer.X, pointer.Y);
    });
    connect(scene_, &SceneView::PointerReleased, this, [this](const editing::Pointer& pointer) {
        RunDuringDrag([&](Editor& editor) { ReleaseScene(editor, pointer); });
    });
    connect(scene_, &SceneView::PointerLeft, this, [this] {
        pointerStatus_->ClearPointer();
        RunDuringDrag(editing::LeaveScene);
    });
    connect(scene_, &SceneView::KeyPressed, this, [this](editing::SceneKey key) {
        Run([key](Editor& editor) { KeyDownScene(editor, key); });
    });
    connect(scene_, &SceneView::HalfStepWanted, this, [this](editing::Direction direction) {
        Run([direction](Editor& editor) { NudgeHalf(editor, direction); });
    });
    connect(scene_, &SceneView::ShiftHeld, this, [this](bool isHeld) {
        RunDuringDrag([=](Editor& editor) { HoldShift(editor, isHeld); });
    });
    // Queued: the program that the files come from waits until the drop has been taken.
    auto* drops = new DropTarget(*this, [this] { return !editor_.DocumentExists; });
    connect(drops, &DropTarget::Dropped, this, &MainWindow::TakeDrop, Qt::QueuedConnection);
    connect(drops, &DropTarget::Hovers, startView_, &StartView::ShowDrag);
    connect(horizontalScroll_, &QScrollBar::valueChanged, this, [this](int value) {
        RunDuringDrag([=](Editor& editor) { ScrollHorizontally(editor, value); });
    });
    connect(verticalScroll_, &QScrollBar::valueChanged, this, [this](int value) {
        RunDuringDrag([=](Editor& editor) { ScrollVertically(editor, value); });
    });
}

void MainWindow::AddShortcuts() {
    for (const Shortcut& shortcut : WindowShortcuts()) {
        auto* action = new QAction(shortcut.Caption, this);
        action->setShortcuts(shortcut.Keys);
        connect(action, &QAction::triggered, this,
                [this, command = shortcut.Command] { Run(command); });
        addAction(action);
    }
    auto* escape = new QAction(Words::tr("Give up"), this);
    escape->setShortcut(Qt::Key_Escape);
    connect(escape, &QAction::triggered, this, &MainWindow::GiveUp);
    addAction(escape);
}

}  // namespace orbelle::app
