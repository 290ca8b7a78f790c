// How the toolbar looks.
#include <QPainter>

#include "widgets/artwork.h"
#include "widgets/button_bar.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr double kDisabledOpacity = 0.35;
constexpr int kIconMargin = 5;
constexpr int kArrowRoom = 10;

// A triangle of three rows with its middle 5 pixels from the right end, .
void PaintArrow(QPainter& painter, const QRect& place) {
    const int middle = place.left() + place.width() - 5;
    const int top = place.top() + (place.height() - 2) / 2;
    for (int row = 0; row < 3; ++row)
        painter.fillRect(middle - 2 + row, top + row, 5 - 2 * row, 1, CurrentTheme().Note);
}

}  // namespace

void ButtonBar::LoadIcons(qreal ratio) {
    if (iconsRatio_ == ratio)
        return;
    iconsRatio_ = ratio;
    icons_.clear();
    for (const BarButton& button : buttons_)
        icons_.push_back(button.Artwork.isEmpty()
                             ? QPixmap()
                             : Artwork(button.Artwork, QSize(iconSize_, iconSize_), ratio));
}

void ButtonBar::paintEvent(QPaintEvent*) {
    LoadIcons(devicePixelRatioF());
    QPainter painter(this);
    painter.fillRect(rect(), CurrentTheme().Ground);
    for (int i = 0; i < Count(); ++i) {
        if (buttons_[i].IsSeparator)
            PaintSeparator(painter, layout_.SeparatorLines[i]);
        else
            PaintButton(painter, i);
    }
    if (showFocus_ && focusIndex_ >= 0)
        PaintFocus(painter, layout_.Places[focusIndex_]);
}

void ButtonBar::PaintSeparator(QPainter& painter, int line) const {
    constexpr int kBegin = 2;
    const int length = (IsHorizontal() ? height() : width()) - 4 - kBegin;
    if (IsHorizontal()) {
        painter.fillRect(line - 1, kBegin, 1, length, HairlineColor());
    } else {
        painter.fillRect(kBegin, line - 1, length, 1, HairlineColor());
    }
}

void ButtonBar::PaintButton(QPainter& painter, int index) const {
    const BarButton& button = buttons_[index];
    const QRect& place = layout_.Places[index];
    const bool enabled = states_[index].Enabled && isEnabled();
    painter.setOpacity(enabled ? 1 : kDisabledOpacity);

    const bool isBelowPointer = enabled && index == hoverIndex_;
    if (states_[index].Pressed || isBelowPointer)
        DrawFace(painter, place, states_[index].Pressed || showDown_);

    const int across = IsHorizontal() ? place.height() : place.width();
    const int acrossMargin = (across + 1 - iconSize_) / 2;
    const int alongMargin = IsHorizontal() ? kIconMargin : (place.height() + 1 - iconSize_) / 2;
    const QPoint icon = place.topLeft() + (IsHorizontal() ? QPoint(alongMargin, acrossMargin)
                                                          : QPoint(acrossMargin, alongMargin));
    painter.drawPixmap(icon, icons_[index]);

    if (IsHorizontal() && !button.Caption.isEmpty()) {
        QRect box = place.adjusted(kIconMargin + iconSize_, 0, 1, 1);
        if (button.HasArrow)
            box.setWidth(box.width() - kArrowRoom);
        painter.setPen(CurrentTheme().Text);
        painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip,
                         button.Caption);
    }
    if (IsHorizontal() && button.HasArrow)
        PaintArrow(painter, place);
    painter.setOpacity(1);
}

void ButtonBar::PaintFocus(QPainter& painter, const QRect& place) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(CurrentTheme().Accent);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(place).translated(0.5, 0.5), 3, 3);
}

}  // namespace orbelle::widgets
