#include "widgets/button_bar.h"

#include <QApplication>
#include <QCursor>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "widgets/artwork.h"

namespace orbelle::widgets {
namespace {

constexpr int kPollMilliseconds = 50;

const char* SkinName(ButtonBarStyle style) {
    switch (style) {
        case ButtonBarStyle::Vista:
            return "skins/vista";
        case ButtonBarStyle::Win10:
            return "skins/win10";
        default:
            return "skins/normal";
    }
}

}  // namespace

ButtonBar::ButtonBar(const ButtonBarSetup& setup, QWidget* parent)
    : QWidget(parent),
      direction_(setup.Direction),
      style_(setup.Styles),
      iconSize_(std::max(setup.IconSize, 1)),
      images_(setup.Images),
      skinNormal_(PixelArtwork(SkinName(setup.Styles))),
      skinDown_(PixelArtwork(QString(SkinName(setup.Styles)) + "-down")) {
    ShowPartsToAssistiveTools();
    for (const QString& fields : setup.Buttons)
        buttons_.push_back(ParseBarButton(fields));

    QFont font("Verdana", 9);
    font.setStyleHint(QFont::SansSerif);
    setFont(font);
    setMouseTracking(true);
    // A click leaves the focus where it is: the keys belong to the picture.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    poll_.setInterval(kPollMilliseconds);
    connect(&poll_, &QTimer::timeout, this, &ButtonBar::PollHover);
    LayOut();
}

int ButtonBar::IndexOf(int number) const {
    return number >= 1 && number <= ButtonCounts() ? number - 1 : -1;
}

int ButtonBar::ButtonCounts() const {
    return static_cast<int>(buttons_.size());
}

bool ButtonBar::IsPressed(int index) const {
    const int i = IndexOf(index);
    return i >= 0 && buttons_[i].IsPressed;
}

void ButtonBar::SetButtonPressState(int index, bool isPress) {
    const int i = IndexOf(index);
    if (i < 0 || buttons_[i].IsPressed == isPress)
        return;
    buttons_[i].IsPressed = isPress;
    QAccessible::State changed;
    changed.pressed = true;
    AnnounceState(*this, PartOf(i), changed);
    update();
}

bool ButtonBar::GetButtonEnable(int index) const {
    const int i = IndexOf(index);
    return i >= 0 && buttons_[i].Enabled;
}

void ButtonBar::SetButtonEnable(int index, bool isEnable) {
    const int i = IndexOf(index);
    if (i < 0 || buttons_[i].Enabled == isEnable)
        return;
    buttons_[i].Enabled = isEnable;
    QAccessible::State changed;
    changed.disabled = true;
    AnnounceState(*this, PartOf(i), changed);
    update();
}

void ButtonBar::SetButtonCaptions(int index, const QString& caption) {
    const int i = IndexOf(index);
    if (i < 0 || buttons_[i].Caption == caption)
        return;
    buttons_[i].Caption = caption;
    LayOut();
}

void ButtonBar::SetButtonToolTip(int index, const QString& tip) {
    if (const int i = IndexOf(index); i >= 0)
        buttons_[i].ToolTip = tip;
}

void ButtonBar::AddButtonMenu(int index, const ButtonMenu& menu) {
    const int i = IndexOf(index);
    if (i < 0)
        return;
    BarButton& button = buttons_[i];
    button.Menus.push_back(menu);
    button.MenuCount = std::max(button.MenuCount, static_cast<int>(button.Menus.size()));
    LayOut();
}

const std::vector<BarButton>& ButtonBar::Buttons() const {
    return buttons_;
}

int ButtonBar::ButtonIndex() const {
    return buttonIndex_ + 1;
}

int ButtonBar::refTopValue() const {
    return buttonIndex_ < 0 ? 0 : layout_.Places[buttonIndex_].top();
}

QRect ButtonBar::ButtonRect(int index) const {
    const int i = IndexOf(index);
    return i < 0 ? QRect() : layout_.Places[i];
}

int ButtonBar::Thickness() const {
    const int icon = iconSize_ + 10;
    const bool hasCaption =
        IsHorizontal() && std::any_of(buttons_.begin(), buttons_.end(),
                                      [](const BarButton& b) { return !b.Caption.isEmpty(); });
    return hasCaption ? std::max(icon, fontMetrics().height() + 8) : icon;
}

QSize ButtonBar::sizeHint() const {
    return IsHorizontal() ? QSize(layout_.Length, Thickness()) : QSize(Thickness(), layout_.Length);
}

QSize ButtonBar::minimumSizeHint() const {
    return sizeHint();
}

void ButtonBar::LayOut() {
    const QFontMetricsF metrics(font());
    layout_ =
        LayOutButtonBar(buttons_, direction_, iconSize_, IsHorizontal() ? height() : width(),
                        [&](const QString& text) {
                            return static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));
                        });
    updateGeometry();
    update();
}

bool ButtonBar::CanPress(int index) const {
    return index >= 0 && buttons_[index].Enabled && !buttons_[index].IsSeparator();
}

void ButtonBar::MoveHover(const QPoint& point) {
    const int hit = ButtonAt(buttons_, layout_, point);
    if (hit < 0)
        return;
    buttonIndex_ = hit;
    if (hit == hoverIndex_)
        return;
    hoverIndex_ = hit;
    showDown_ = false;
    poll_.start();
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
    poll_.stop();
    hoverIndex_ = -1;
    showDown_ = false;
    update();
}

void ButtonBar::Press(int index) {
    buttonIndex_ = index;
    if (buttons_[index].ButtonType == 1)
        SetButtonPressState(index + 1, !buttons_[index].IsPressed);
    update();
    emit MouseClick(index + 1);
}

void ButtonBar::mouseMoveEvent(QMouseEvent* event) {
    MoveHover(event->pos());
}

void ButtonBar::mousePressEvent(QMouseEvent* event) {
    MoveHover(event->pos());
    const int hit = ButtonAt(buttons_, layout_, event->pos());
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
            LayOut();
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
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int hit = ButtonAt(buttons_, layout_, help->pos());
    if (hit >= 0 && !buttons_[hit].ToolTip.isEmpty())
        QToolTip::showText(help->globalPos(), buttons_[hit].ToolTip, this, layout_.Places[hit]);
    else
        QToolTip::hideText();
    return true;
}

int ButtonBar::NextEnabled(int from, int step) const {
    for (int i = from + step; i >= 0 && i < ButtonCounts(); i += step)
        if (CanPress(i))
            return i;
    return from;
}

void ButtonBar::FocusButton(int index) {
    focusIndex_ = index;
    AnnounceFocus(*this, PartOf(index));
    update();
}

void ButtonBar::focusInEvent(QFocusEvent*) {
    showFocus_ = true;
    FocusButton(CanPress(focusIndex_) ? focusIndex_ : NextEnabled(-1, 1));
}

void ButtonBar::focusOutEvent(QFocusEvent*) {
    showFocus_ = false;
    update();
}

void ButtonBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            return FocusButton(NextEnabled(focusIndex_, -1));
        case Qt::Key_Right:
        case Qt::Key_Down:
            return FocusButton(NextEnabled(focusIndex_, 1));
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (CanPress(focusIndex_) && !event->isAutoRepeat())
                Press(focusIndex_);
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace orbelle::widgets
