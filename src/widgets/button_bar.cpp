#include "widgets/button_bar.h"

#include <QApplication>
#include <QCursor>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "widgets/artwork.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr int kPollMilliseconds = 50;

}  // namespace

ButtonBar::ButtonBar(const ButtonBarSetup& setup, QWidget* parent)
    : QWidget(parent),
      metrics_(setup.Metrics),
      hasFrame_(setup.HasFrame),
      onBand_(setup.OnBand),
      buttons_(setup.Buttons),
      states_(setup.Buttons.size()),
      beside_(setup.Buttons.size()) {
    ShowPartsToAssistiveTools();
    setFont(ChromeFont(kNormalText));
    setMouseTracking(true);
    // A click leaves the focus where it is: the keys belong to the picture.
    setFocusPolicy(Qt::TabFocus);
    const bool canGrow = std::ranges::any_of(buttons_, &BarButton::IsSpring);
    setSizePolicy(canGrow && IsHorizontal() ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  canGrow && !IsHorizontal() ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    hoverPoll_.setInterval(kPollMilliseconds);
    connect(&hoverPoll_, &QTimer::timeout, this, &ButtonBar::PollHover);
    LayOut();
}

int ButtonBar::IndexOf(int number) const {
    return number >= 1 && number <= Count() ? number - 1 : -1;
}

bool ButtonBar::IsPressed(int button) const {
    const int i = IndexOf(button);
    return i >= 0 && states_[i].Pressed;
}

void ButtonBar::SetPressed(int button, bool pressed) {
    const int i = IndexOf(button);
    if (i < 0 || states_[i].Pressed == pressed)
        return;
    states_[i].Pressed = pressed;
    QAccessible::State changed;
    changed.pressed = true;
    AnnounceState(*this, PartOf(i), changed);
    update();
}

void ButtonBar::SetButtonEnabled(int button, bool enabled) {
    const int i = IndexOf(button);
    if (i < 0 || states_[i].Enabled == enabled)
        return;
    states_[i].Enabled = enabled;
    QAccessible::State changed;
    changed.disabled = true;
    AnnounceState(*this, PartOf(i), changed);
    update();
}

void ButtonBar::SetToolTip(int button, const QString& text) {
    const int i = IndexOf(button);
    if (i < 0 || buttons_[i].ToolTip == text)
        return;
    buttons_[i].ToolTip = text;
    AnnounceName(*this, PartOf(i));
}

void ButtonBar::SetChoice(int button, const QString& artwork, const QString& name) {
    const int i = IndexOf(button);
    if (i < 0 || (states_[i].Corner == artwork && states_[i].Choice == name))
        return;
    states_[i].Corner = artwork;
    states_[i].Choice = name;
    iconsRatio_ = 0;
    update();
}

void ButtonBar::PutBeside(int button, QWidget& widget) {
    const int i = IndexOf(button);
    if (i < 0)
        return;
    widget.setParent(this);
    widget.resize(widget.sizeHint());
    beside_[i] = &widget;
    buttons_[i].RoomBeside = widget.width();
    LayOut();
}

int ButtonBar::LastButton() const {
    return lastIndex_ + 1;
}

QRect ButtonBar::ButtonRect(int button) const {
    const int i = IndexOf(button);
    return i < 0 ? QRect() : layout_.Places[i];
}

QSize ButtonBar::sizeHint() const {
    const QSize across = metrics_.FaceSize + 2 * QSize(metrics_.Margin, metrics_.Margin);
    return IsHorizontal() ? QSize(layout_.Length, across.height())
                          : QSize(across.width(), layout_.Length);
}

QSize ButtonBar::minimumSizeHint() const {
    return sizeHint();
}

void ButtonBar::LayOut() {
    const QFontMetricsF metrics(font());
    const int lengthBefore = layout_.Length;
    layout_ = LayOutButtonBar(buttons_, metrics_, size(), [&](const QString& text) {
        return static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));
    });
    const auto mirror = [this](QRect& place) {
        if (!place.isEmpty())
            place = QStyle::visualRect(layoutDirection(), rect(), place);
    };
    std::ranges::for_each(layout_.Places, mirror);
    std::ranges::for_each(layout_.Lines, mirror);
    for (int i = 0; i < Count(); ++i)
        if (beside_[i]) {
            const QRect& face = layout_.Places[i];
            const int top = face.top() + (face.height() - beside_[i]->height()) / 2;
            beside_[i]->move(isRightToLeft() ? face.left() - metrics_.Gap - beside_[i]->width()
                                             : face.right() + 1 + metrics_.Gap,
                             top);
        }
    if (layout_.Length != lengthBefore)
        updateGeometry();
    update();
}

bool ButtonBar::CanPress(int index) const {
    return index >= 0 && states_[index].Enabled && !buttons_[index].IsGap();
}

void ButtonBar::MoveHover(const QPoint& point) {
    const int hit = ButtonAt(layout_, point);
    if (hit < 0)
        return;
    lastIndex_ = hit;
    if (hit == hoverIndex_)
        return;
    hoverIndex_ = hit;
    showDown_ = false;
    hoverPoll_.start();
    update();
}

void ButtonBar::PollHover() {
    if (QApplication::widgetAt(QCursor::pos()) != this) {
        EndHover();
    } else if (showDown_ && QApplication::mouseButtons() == Qt::NoButton) {
        // A menu or dialog that the click opened has taken the release.
        showDown_ = false;
        update();
    }
}

void ButtonBar::EndHover() {
    hoverPoll_.stop();
    hoverIndex_ = -1;
    showDown_ = false;
    update();
}

void ButtonBar::Press(int index) {
    lastIndex_ = index;
    if (buttons_[index].Latches)
        SetPressed(index + 1, !states_[index].Pressed);
    update();
    emit Clicked(index + 1);
}

void ButtonBar::mouseMoveEvent(QMouseEvent* event) {
    MoveHover(event->pos());
}

void ButtonBar::mousePressEvent(QMouseEvent* event) {
    MoveHover(event->pos());
    const int hit = ButtonAt(layout_, event->pos());
    if (!CanPress(hit))
        return;
    showDown_ = true;
    Press(hit);
}

void ButtonBar::mouseReleaseEvent(QMouseEvent*) {
    showDown_ = false;
    update();
}

void ButtonBar::leaveEvent(QEvent*) {
    EndHover();
}

void ButtonBar::hideEvent(QHideEvent*) {
    EndHover();
}

void ButtonBar::changeEvent(QEvent* event) {
    switch (event->type()) {
        case QEvent::ActivationChange:
            if (!isActiveWindow())
                EndHover();
            break;
        case QEvent::EnabledChange:
            EndHover();
            break;
        case QEvent::FontChange:
        case QEvent::LayoutDirectionChange:
            LayOut();
            break;
        case QEvent::PaletteChange:
            iconsRatio_ = 0;
            break;
        default:
            break;
    }
    QWidget::changeEvent(event);
}

void ButtonBar::resizeEvent(QResizeEvent*) {
    LayOut();
}

bool ButtonBar::event(QEvent* event) {
    // Before it is the window's.
    if (event->type() == QEvent::ShortcutOverride && hasFrame_ &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int hit = ButtonAt(layout_, help->pos());
    if (hit >= 0 && !buttons_[hit].ToolTip.isEmpty())
        QToolTip::showText(help->globalPos(), buttons_[hit].ToolTip, this, layout_.Places[hit]);
    else
        QToolTip::hideText();
    return true;
}

int ButtonBar::NextEnabled(int from, int step) const {
    for (int i = from + step; i >= 0 && i < Count(); i += step)
        if (CanPress(i))
            return i;
    return from;
}

void ButtonBar::FocusButton(int index) {
    focusIndex_ = index;
    AnnounceFocus(*this, PartOf(index));
    update();
}

void ButtonBar::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    // What had it before an interruption has it still.
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        byKeyboard_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                      reason == Qt::ShortcutFocusReason;
    showFocus_ = byKeyboard_;
    FocusButton(CanPress(focusIndex_) ? focusIndex_ : NextEnabled(-1, 1));
}

void ButtonBar::focusOutEvent(QFocusEvent*) {
    showFocus_ = false;
    update();
}

void ButtonBar::keyPressEvent(QKeyEvent* event) {
    const int toTheRight = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
        case Qt::Key_Left:
            return FocusButton(NextEnabled(focusIndex_, -toTheRight));
        case Qt::Key_Right:
            return FocusButton(NextEnabled(focusIndex_, toTheRight));
        case Qt::Key_Up:
            return FocusButton(NextEnabled(focusIndex_, -1));
        case Qt::Key_Down:
            return FocusButton(NextEnabled(focusIndex_, 1));
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (CanPress(focusIndex_) && !event->isAutoRepeat())
                Press(focusIndex_);
            return;
        case Qt::Key_Escape:
            if (hasFrame_)
                return emit LeaveWanted();
            [[fallthrough]];
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace orbelle::widgets
