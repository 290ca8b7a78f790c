#include "widgets/size_strip.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "widgets/size_strip_metrics.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::widgets {

using namespace strip_metrics;

SizeStrip::SizeStrip(QWidget* parent) : QWidget(parent) {
    ShowPartsToAssistiveTools();
    setFont(ChromeFont(kLabelPoints));
    setMouseTracking(true);
    // A click leaves the keyboard with the picture that is being edited.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SizeStrip::SetCells(std::vector<SizeCell> cells) {
    if (cells == cells_)
        return;
    const std::vector<SizeCell> before = std::exchange(cells_, std::move(cells));
    if (!std::ranges::equal(before, cells_, {}, &SizeCell::Size, &SizeCell::Size)) {
        hovered_ = -1;
        updateGeometry();
    } else {
        for (int part = 0; part < PartCount(); ++part)
            if (before[part].IsDrawnByHand != cells_[part].IsDrawnByHand)
                AnnounceName(*this, part);
    }
    update();
}

void SizeStrip::SetEditedSize(int size) {
    if (size == editedSize_)
        return;
    frameBefore_ = EditedFrame();
    editedSize_ = size;
    if (!frameBefore_.isEmpty())
        moving_.Start();
    QAccessible::State changed;
    changed.selected = true;
    for (int part = 0; part < PartCount(); ++part)
        AnnounceState(*this, part, changed);
    update();
}

void SizeStrip::SetGround(StripGround ground) {
    ground_ = ground;
    update();
}

void SizeStrip::SetDoubled(bool doubled) {
    doubled_ = doubled;
    updateGeometry();
    update();
}

double SizeStrip::Scale() const {
    return (doubled_ ? 2 : 1) / devicePixelRatioF();
}

int SizeStrip::Side(int size) const {
    return static_cast<int>(std::ceil(size * Scale()));
}

int SizeStrip::CellWidth(int size) const {
    return std::max(Side(size), kLabelWidth) + 2 * kMargin;
}

int SizeStrip::RoomIn(int width) const {
    return width - 2 * kStart;
}

int SizeStrip::LargestSizeWithin(int height) const {
    return static_cast<int>((height - LabelHeight() - 2 * kMargin) / Scale());
}

int SizeStrip::GroundHeight() const {
    int side = 0;
    for (const SizeCell& cell : cells_)
        side = std::max(side, Side(cell.Size));
    return side + 2 * kMargin;
}

QSize SizeStrip::sizeHint() const {
    int width = 2 * kStart;
    for (const SizeCell& cell : cells_)
        width += CellWidth(cell.Size);
    return {width, GroundHeight() + LabelHeight()};
}

QRect SizeStrip::PartPlace(int part) const {
    int x = kStart;
    for (int i = 0; i < part; ++i)
        x += CellWidth(cells_[i].Size);
    const QRect place(x, 0, CellWidth(cells_[part].Size), GroundHeight() + LabelHeight());
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

QRect SizeStrip::CellPlace(int size) const {
    for (int part = 0; part < PartCount(); ++part)
        if (cells_[part].Size == size)
            return PartPlace(part);
    return {};
}

int SizeStrip::PartAt(const QPoint& point) const {
    for (int part = 0; part < PartCount(); ++part)
        if (PartPlace(part).contains(point))
            return part;
    return -1;
}

QString SizeStrip::PartName(int part) const {
    return (cells_[part].IsDrawnByHand ? Words::tr("%1 x %1, drawn by hand")
                                       : Words::tr("%1 x %1, from the master"))
        .arg(cells_[part].Size);
}

QString SizeStrip::PartValue(int part) const {
    return cells_[part].Warning;
}

QAccessible::State SizeStrip::PartState(int part) const {
    QAccessible::State state;
    state.disabled = !isEnabled();
    state.selectable = true;
    state.selected = cells_[part].Size == editedSize_;
    state.offscreen = visibleRegion().intersected(PartPlace(part)).isEmpty();
    return state;
}

int SizeStrip::FocusedPart() const {
    const auto found = std::ranges::find(cells_, focusedSize_, &SizeCell::Size);
    return found == cells_.end() ? -1 : static_cast<int>(found - cells_.begin());
}

void SizeStrip::PressPart(int part) {
    emit Clicked(cells_[part].Size, false);
}

void SizeStrip::Hover(int part) {
    if (part == hovered_)
        return;
    hovered_ = part;
    setCursor(part < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void SizeStrip::mouseMoveEvent(QMouseEvent* event) {
    Hover(PartAt(event->pos()));
}

void SizeStrip::leaveEvent(QEvent*) {
    Hover(-1);
}

void SizeStrip::mousePressEvent(QMouseEvent* event) {
    const int part = PartAt(event->pos());
    if (part >= 0 && event->button() == Qt::LeftButton)
        emit Clicked(cells_[part].Size, true);
}

// A double click is one click: the second must not take back what the first has done.
void SizeStrip::mouseDoubleClickEvent(QMouseEvent*) {}

void SizeStrip::contextMenuEvent(QContextMenuEvent* event) {
    const int part = PartAt(event->pos());
    if (event->reason() == QContextMenuEvent::Mouse && part >= 0)
        emit MenuWanted(cells_[part].Size, event->globalPos());
}

bool SizeStrip::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    ShowToolTip(*static_cast<QHelpEvent*>(event));
    return true;
}

void SizeStrip::ShowToolTip(const QHelpEvent& help) {
    const int part = PartAt(help.pos());
    if (part < 0)
        return QToolTip::hideText();
    const QString& warning = cells_[part].Warning;
    QToolTip::showText(help.globalPos(),
                       warning.isEmpty() ? PartName(part) : PartName(part) + '\n' + warning, this,
                       PartPlace(part));
}

void SizeStrip::FocusPart(int part) {
    if (part < 0 || part >= PartCount())
        return;
    focusedSize_ = cells_[part].Size;
    AnnounceFocus(*this, part);
    emit FocusMoved(PartPlace(part));
    update();
}

void SizeStrip::focusInEvent(QFocusEvent*) {
    if (FocusedPart() < 0)
        focusedSize_ = editedSize_;
    FocusPart(std::max(FocusedPart(), 0));
}

void SizeStrip::focusOutEvent(QFocusEvent*) {
    update();
}

void SizeStrip::keyPressEvent(QKeyEvent* event) {
    const int part = FocusedPart();
    const bool wantsMenu = event->key() == Qt::Key_Menu ||
                           (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (part >= 0 && wantsMenu)
        return emit MenuWanted(cells_[part].Size, mapToGlobal(PartPlace(part).bottomLeft()));
    switch (event->key()) {
        case Qt::Key_Left:
            return FocusPart(isRightToLeft() ? part + 1 : part - 1);
        case Qt::Key_Right:
            return FocusPart(isRightToLeft() ? part - 1 : part + 1);
        case Qt::Key_Home:
            return FocusPart(0);
        case Qt::Key_End:
            return FocusPart(PartCount() - 1);
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (part >= 0 && !event->isAutoRepeat())
                PressPart(part);
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace orbelle::widgets
