// What the mouse does in the list of layers: picking, hiding, dragging and naming rows.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "widgets/layer_list.h"
#include "widgets/layer_list_metrics.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::widgets {
namespace {

constexpr int kLongestName = 200;

}  // namespace

QRect LayerList::Mirrored(const QRect& place) const {
    return QStyle::visualRect(layoutDirection(), viewport()->rect(), place);
}

QRect LayerList::EyePlace(int row) const {
    const QRect place = RowPlace(row);
    return Mirrored(
        {place.right() + 1 - kLayerEyeWidth, place.top(), kLayerEyeWidth, place.height()});
}

QRect LayerList::TextPlace(int row) const {
    return Mirrored(
        RowPlace(row).adjusted(kSpace + kLayerThumbnail + kSpace, 0, -kLayerEyeWidth, 0));
}

int LayerList::RowAt(const QPoint& place) const {
    for (int row = 0; row < Count(); ++row)
        if (RowPlace(row).contains(place))
            return row;
    return -1;
}

void LayerList::mousePressEvent(QMouseEvent* event) {
    EndDrag();
    const int row = RowAt(event->pos());
    const bool isLeft = event->button() == Qt::LeftButton;
    if (isLeft && row >= 0 && EyePlace(row).contains(event->pos())) {
        emit EyePressed(LayerOfRow(row));
        emit Picked();
        return;
    }
    if (row >= 0)
        Select(LayerOfRow(row));
    AnnounceFocus(*this, FocusedPart());
    if (isLeft && row >= 0 && rows_[LayerOfRow(row)].CanMove) {
        pressedRow_ = row;
        pressedY_ = event->pos().y();
    }
    emit Clicked(event->button(), event->modifiers(), event->pos());
    if (event->type() == QEvent::MouseButtonDblClick && isLeft && row >= 0)
        StartRename();
    else
        emit Picked();
}

void LayerList::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void LayerList::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton))
        return EndDrag();
    const int y = event->pos().y();
    const bool isFar = std::abs(y - pressedY_) >= QApplication::startDragDistance();
    if (pressedRow_ >= 0 && (gap_ >= 0 || isFar))
        DragRow(y);
}

// The gap nearest to the pointer; rows beyond the list's edges come into sight.
void LayerList::DragRow(int y) {
    if (gap_ < 0)
        grabKeyboard();  // Escape
    QScrollBar& bar = *verticalScrollBar();
    if (y < 0 || y >= viewport()->height())
        bar.setValue(bar.value() + (y < 0 ? -LayerRowHeight() : LayerRowHeight()) / 2);
    gap_ = std::clamp((y + bar.value() + LayerRowHeight() / 2) / LayerRowHeight(), 0, Count());
    viewport()->update();
}

void LayerList::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const int from = pressedRow_, gap = gap_;
    EndDrag();
    if (gap < 0 || gap == from || gap == from + 1)
        return;
    emit Moved(LayerOfRow(from), LayerOfRow(gap > from ? gap - 1 : gap));
}

void LayerList::EndDrag() {
    pressedRow_ = -1;
    if (std::exchange(gap_, -1) < 0)
        return;
    releaseKeyboard();
    viewport()->update();
}

// Escape belongs to a drag first; another window takes the keyboard.
bool LayerList::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate)
        EndDrag();
    if (event->type() == QEvent::ShortcutOverride && gap_ >= 0 &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

void LayerList::hideEvent(QHideEvent* event) {
    EndDrag();
    EndRename(true);
    QAbstractScrollArea::hideEvent(event);
}

void LayerList::StartRename() {
    EndDrag();
    EndRename(true);
    const int row = FocusedPart();
    if (row < 0)
        return;
    renamed_ = selectedIndex_;
    name_ = new QLineEdit(PartName(row), viewport());
    name_->setAccessibleName(Words::tr("Layer name"));
    name_->setMaxLength(kLongestName);
    name_->setFont(ChromeFont(kNormalText));
    const QRect place = TextPlace(row);
    name_->setGeometry(place.left() - kTightSpace,
                       place.top() + (place.height() - HeightFor(kControlHeight)) / 2,
                       place.width() + kTightSpace, HeightFor(kControlHeight));
    name_->installEventFilter(this);
    name_->show();
    name_->selectAll();
    name_->setFocus();
}

void LayerList::EndRename(bool takesName) {
    QLineEdit* name = std::exchange(name_, nullptr);
    if (!name)
        return;
    const int layer = std::exchange(renamed_, -1);
    name->removeEventFilter(this);
    name->hide();
    name->deleteLater();
    if (takesName && name->isModified())
        emit Renamed(layer, name->text());
}

// Of the name that is being typed.
bool LayerList::eventFilter(QObject* watched, QEvent* event) {
    if (watched != name_)
        return QAbstractScrollArea::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        EndRename(true);
        return false;
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isReturn && key != Qt::Key_Escape)
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        EndRename(isReturn);
        emit Picked();
    }
    return true;
}

}  // namespace orbelle::widgets
