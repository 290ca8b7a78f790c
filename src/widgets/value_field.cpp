#include "widgets/value_field.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpressionValidator>
#include <utility>

#include "widgets/theme.h"
#include "widgets/track_slider.h"

namespace orbelle::widgets {
namespace {

constexpr int kWidth = 48;
constexpr int kHeight = kControlHeight - kTightSpace;

}  // namespace

ValueField::ValueField(TrackSlider& slider, int offset, const QString& unit)
    : slider_(&slider), offset_(offset), unit_(unit) {
    setFixedSize(WidthFor(kWidth), HeightFor(kHeight));
    setFrame(false);
    setTextMargins(2, 0, 2, 0);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setValidator(new QRegularExpressionValidator(QRegularExpression("[-+]?[0-9]{0,4}%?"), this));
    setAcceptDrops(false);  // the window takes them
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);  // a press may be the beginning of a drag
    setCursor(Qt::SizeHorCursor);
    connect(this, &QLineEdit::textEdited, this, [this] { typing_ = true; });
}

void ValueField::Show(int number) {
    shown_ = QString::number(number) + unit_;
    if (!typing_ && text() != shown_)
        setText(shown_);
}

void ValueField::CommitTyping() {
    if (!std::exchange(typing_, false))
        return;
    QString typed = text();
    bool isNumber = false;
    const int number = typed.remove('%').toInt(&isNumber);
    if (isNumber)
        slider_->TakeValue(qBound(slider_->minimum(), number + offset_, slider_->maximum()));
    setText(shown_);
}

void ValueField::GiveUpTyping() {
    typing_ = false;
    setText(shown_);
}

// It would take all keys. Escape is its own; letters are never, Undo and Redo only while it is
// typed in.
bool ValueField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto& key = *static_cast<QKeyEvent*>(event);
        const bool isEscape = key.key() == Qt::Key_Escape;
        const bool isLetter = !key.text().isEmpty() && key.text()[0].isLetter();
        const bool isUndo = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
        if (isEscape || isLetter || (isUndo && !typing_)) {
            event->setAccepted(isEscape);
            return true;
        }
    }
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave)
        update();
    return QLineEdit::event(event);
}

void ValueField::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            CommitTyping();
            emit Finished();
            return;
        case Qt::Key_Escape:
            GiveUpTyping();
            emit Finished();
            return;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            CommitTyping();
            QApplication::sendEvent(slider_, event);
            selectAll();
            return;
        default:
            QLineEdit::keyPressEvent(event);
    }
}

void ValueField::mousePressEvent(QMouseEvent* event) {
    if (hasFocus())
        return QLineEdit::mousePressEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = true;
    downX_ = event->globalPosition().toPoint().x();
    downValue_ = slider_->value();
}

void ValueField::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed_)
        return QLineEdit::mouseMoveEvent(event);
    if (!(event->buttons() & Qt::LeftButton))
        return EndScrub();
    const int moved = event->globalPosition().toPoint().x() - downX_;
    if (!scrubbing_ && qAbs(moved) < QApplication::startDragDistance() / 2)
        return;
    if (!std::exchange(scrubbing_, true)) {
        slider_->setFocus(Qt::MouseFocusReason);  // Escape is for it
        slider_->BeginDrag();
    }
    slider_->Drag(downValue_ + moved);
}

void ValueField::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed_ || event->button() != Qt::LeftButton)
        return QLineEdit::mouseReleaseEvent(event);
    const bool isClick = !scrubbing_;
    EndScrub();
    if (isClick)
        setFocus(Qt::MouseFocusReason);
}

void ValueField::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        selectAll();
}

void ValueField::EndScrub() {
    pressed_ = false;
    if (std::exchange(scrubbing_, false))
        slider_->EndDrag();
}

void ValueField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    setCursor(Qt::IBeamCursor);
    selectAll();
}

void ValueField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    setCursor(Qt::SizeHorCursor);
    deselect();
    CommitTyping();
}

// Undo and Paste of its own would be taken for the page's.
void ValueField::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

void ValueField::hideEvent(QHideEvent* event) {
    EndScrub();
    QLineEdit::hideEvent(event);
}

// The base draws its ground as far as the corners, which are round here.
void ValueField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath edge, outside;
    edge.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius,
                        kCornerRadius);
    outside.addRect(rect());
    painter.fillPath(outside.subtracted(edge), CurrentTheme().Ground);
    painter.setPen(QPen(!isEnabled()   ? HairlineColor()
                        : hasFocus()   ? CurrentTheme().Accent
                        : underMouse() ? CurrentTheme().Note
                                       : CurrentTheme().Line,
                        1));
    painter.drawPath(edge);
}

}  // namespace orbelle::widgets
