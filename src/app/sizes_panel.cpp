#include "app/sizes_panel.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

#include "app/findings_list.h"
#include "app/shared_image.h"
#include "app/size_menu.h"
#include "editing/export_commands.h"
#include "editing/size_strip.h"
#include "widgets/button_bar.h"
#include "widgets/motion.h"
#include "widgets/panel_header.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using widgets::SizeStrip;
using widgets::StripGround;

// So much of the room that it shares with the scene the panel takes for larger pictures than those
// that are always shown.
constexpr int kShareOfHeight = 3;
constexpr int kHeaderRoom = 20;
// A larger page is not followed during a drag: copying it for the thread would hold up the hand.
constexpr std::int64_t kMaxLivePixels = std::int64_t{4} << 20;
constexpr int kToolSize = 12;
constexpr QSize kToolFace(20, 20);
constexpr int kDouble = widgets::kStripGrounds + 2;  // its button, after a separator

QString Warning(const std::vector<formats::Finding>& findings) {
    const auto contrast =
        std::ranges::find(findings, formats::Fault::Contrast, &formats::Finding::Kind);
    if (contrast == findings.end())
        return {};
    const QString text = TextOf(*contrast);
    return text.left(1).toUpper() + text.mid(1);
}

// Each once.
std::vector<int> CheckedSizes(const editing::Editor& editor) {
    std::vector<int> sizes = IconSizesOf(editor);
    std::ranges::copy(SetSizesOf(editor), std::back_inserter(sizes));
    std::ranges::sort(sizes);
    sizes.erase(std::unique(sizes.begin(), sizes.end()), sizes.end());
    return sizes;
}

}  // namespace

SizesPanel::SizesPanel(const WindowContext& context)
    : context_(context),
      header_(new widgets::PanelHeader(Words::tr("Sizes"))),
      findings_(new FindingsList) {
    setObjectName("SizesPanel");
    header_->setObjectName("Sizes");
    thread_.setMaxThreadCount(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header_);
    AddTools();
    AddStrip();
    column->addWidget(findings_);
    findings_->hide();
    connect(findings_, &FindingsList::Wanted, this,
            [this](const formats::Finding& finding, bool byMouse) {
                GoToFinding(context_, finding);
                if (byMouse)
                    context_.Window.FocusScene();
            });
    connect(header_, &widgets::PanelHeader::Clicked, this,
            [this](bool isClosed) { SetOpen(!isClosed); });
}

SizesPanel::~SizesPanel() {
    thread_.waitForDone();
}

void SizesPanel::AddTools() {
    const auto tool = [](const char* artwork, const QString& tip) {
        return widgets::BarButton{.ToolTip = tip, .Artwork = QString("sizes/") + artwork};
    };
    tools_ = new widgets::ButtonBar(
        {.Metrics = {.IconSize = kToolSize, .FaceSize = kToolFace, .Margin = 2},
         .Buttons = {tool("checks", Words::tr("On checks")),
                     tool("white", Words::tr("On white")),
                     tool("grey", Words::tr("On grey")),
                     tool("dark", Words::tr("On dark")),
                     tool("desktop", Words::tr("On a desktop and its task bar")),
                     {.IsSeparator = true},
                     tool("double", Words::tr("Double: each pixel as a square of four"))},
         .OnBand = true});
    tools_->setObjectName("SizesTools");
    tools_->setAccessibleName(Words::tr("What the sizes lie on"));
    header_->SetTools(*tools_);
    connect(tools_, &widgets::ButtonBar::Clicked, this, &SizesPanel::ClickTool);
}

void SizesPanel::AddStrip() {
    strip_ = new SizeStrip;
    strip_->setObjectName("SizeStrip");
    strip_->setAccessibleName(Words::tr("Sizes"));
    scroller_ = new QScrollArea;
    scroller_->setFrameShape(QFrame::NoFrame);
    scroller_->setFocusPolicy(Qt::NoFocus);
    scroller_->setWidgetResizable(true);
    scroller_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller_->setWidget(strip_);
    layout()->addWidget(scroller_);
    connect(strip_, &SizeStrip::Clicked, this, [this](int size, bool byMouse) {
        ClickSize(context_, size);
        if (byMouse)
            context_.Window.FocusScene();
    });
    connect(strip_, &SizeStrip::MenuWanted, this, [this](int size, const QPoint& at) {
        PopUpSizeMenu(context_, size, StripSizes(context_.Commands.Editor()), *this, at);
    });
    connect(strip_, &SizeStrip::FocusMoved, this, [this](const QRect& cell) {
        scroller_->ensureVisible(cell.center().x(), 0, cell.width() / 2, 0);
    });
    ShowTools();
}

void SizesPanel::ClickTool(int button) {
    if (button == kDouble)
        SetDoubled(!IsDoubled());
    else
        SetGround(button - 1);
    context_.Window.FocusScene();
}

void SizesPanel::ShowTools() {
    for (int ground = 0; ground < widgets::kStripGrounds; ++ground)
        tools_->SetPressed(ground + 1, ground == Ground());
    tools_->SetPressed(kDouble, IsDoubled());
}

void SizesPanel::SetGround(int ground) {
    strip_->SetGround(
        static_cast<StripGround>(ground > 0 && ground < widgets::kStripGrounds ? ground : 0));
    ShowTools();
}

void SizesPanel::SetDoubled(bool doubled) {
    strip_->SetDoubled(doubled);
    ShowTools();
    Refresh();
}

void SizesPanel::SetOpen(bool open) {
    const bool opens = open && scroller_->isHidden();
    header_->SetClosed(!open);
    scroller_->setVisible(open);
    if (opens)
        widgets::FadeIn(*scroller_);
    findings_->setVisible(open && isCheckShown_);
    Refresh();
}

void SizesPanel::ShowCheck(bool shown) {
    isCheckShown_ = shown;
    SetOpen(shown || !header_->IsClosed());
}

bool SizesPanel::IsCheckShown() const {
    return isCheckShown_ && !header_->IsClosed();
}

bool SizesPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Resize)
        Refresh();
    return QWidget::eventFilter(watched, event);
}

void SizesPanel::resizeEvent(QResizeEvent*) {
    Refresh();
}

void SizesPanel::showEvent(QShowEvent*) {
    parent()->installEventFilter(this);
    Refresh();
}

bool SizesPanel::CanBeSeen() const {
    return isVisible() && !header_->IsClosed();
}

bool SizesPanel::IsAtRest() const {
    const bool isWanted = isStale_ && CanBeSeen() && context_.Commands.Editor().DocumentExists;
    return !isMaking_ && !isWanted;
}

void SizesPanel::Refresh() {
    editing::Changes all;
    all.Pixels = true;
    Follow(all);
}

void SizesPanel::Follow(const editing::Changes& changes) {
    isStale_ |= changes.Pixels;
    if (!CanBeSeen())
        return;
    if (changes.Pixels)
        ShowCells();
    if (isStale_ && MayMakeNow())
        Make();
}

std::vector<int> SizesPanel::FittingSizes() const {
    const editing::Editor& editor = context_.Commands.Editor();
    const int height = parentWidget()->height() / kShareOfHeight - kHeaderRoom;
    return editing::SizesThatFit(StripSizes(editor), editor.Document.EditedSize,
                                 strip_->LargestSizeWithin(height), strip_->RoomIn(width()),
                                 [this](int size) { return strip_->CellWidth(size); });
}

void SizesPanel::ShowCells() {
    const editing::Editor& editor = context_.Commands.Editor();
    sizes_ = FittingSizes();
    std::vector<widgets::SizeCell> cells;
    for (const int size : sizes_) {
        widgets::SizeCell cell;
        cell.Size = size;
        cell.IsDrawnByHand = editor.Document.ArtworkOf(size) != nullptr;
        const auto known = std::ranges::find(previews_, size, &formats::SizePreview::Size);
        if (known != previews_.end() && editor.DocumentExists) {
            cell.Picture = SharedImage(known->Picture);
            cell.Warning = Warning(known->Findings);
        }
        cells.push_back(std::move(cell));
    }
    strip_->SetCells(std::move(cells));
    strip_->SetEditedSize(editor.Document.EditedSize);
    strip_->setEnabled(editor.DocumentExists);
    FitHeight();
}

// A scroll bar, where one is needed, stands below the labels.
void SizesPanel::FitHeight() {
    const QSize size = strip_->sizeHint();
    const int bar =
        size.width() > width() ? scroller_->horizontalScrollBar()->sizeHint().height() : 0;
    scroller_->setFixedHeight(size.height() + bar);
}

bool SizesPanel::MayMakeNow() const {
    const editing::Editor& editor = context_.Commands.Editor();
    const bool isLive =
        std::int64_t{editor.Canvas.Width()} * editor.Canvas.Height() <= kMaxLivePixels;
    return editor.DocumentExists && !isMaking_ &&
           (isLive || std::holds_alternative<std::monostate>(editor.Drag));
}

void SizesPanel::Make() {
    const editing::Editor& editor = context_.Commands.Editor();
    isMaking_ = true;
    isStale_ = false;
    const document::Family& pages = editor.Document;
    const std::vector<int> checked = CheckedSizes(editor);
    std::vector<int> sizes = sizes_;
    if (isCheckShown_)
        std::ranges::copy_if(checked, std::back_inserter(sizes), [this](int size) {
            return std::ranges::find(sizes_, size) == sizes_.end();
        });
    thread_.start([=, this, isChecked = isCheckShown_, current = editor.Canvas] {
        Made made;
        try {
            made.Previews = maker_.Make(pages, current, sizes);
            if (isChecked)
                made.Findings = EvidentFindings(made.Previews, checked, pages);
        } catch (const std::exception&) {
            // No memory: the pictures stay as they are; the next ones may fit.
        }
        QMetaObject::invokeMethod(
            this, [this, made = std::move(made)] { Take(made); }, Qt::QueuedConnection);
    });
}

void SizesPanel::Take(const Made& made) {
    isMaking_ = false;
    if (!made.Previews.empty())
        previews_ = made.Previews;
    if (made.Findings)
        findings_->Show(*made.Findings);
    if (!CanBeSeen())
        return;
    ShowCells();
    if (isStale_ && MayMakeNow())
        Make();
}

}  // namespace orbelle::app
