// How the toolbar looks.
#include <QPainter>
#include <QStyle>
#include <cmath>

#include "widgets/artwork.h"
#include "widgets/button_bar.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr double kDisabledOpacity = 0.35;
constexpr int kMarkSize = 5;
constexpr int kMarkMargin = 2;
constexpr int kCornerMargin = 1;
constexpr double kRingDistance = 1.5;  // of the focus from the face: a face that is down has a line

// A triangle in a lower corner, row by row of the screen.
void PaintMark(QPainter& painter, const QRect& place, qreal ratio, bool isAtLeft) {
    const QPointF corner =
        isAtLeft ? QPointF(place.bottomLeft()) + QPointF(kMarkMargin, 1 - kMarkMargin)
                 : QPointF(place.bottomRight()) + QPointF(1 - kMarkMargin, 1 - kMarkMargin);
    const QTransform toDevice = painter.deviceTransform();
    const QPointF whole = toDevice.inverted().map(QPointF(toDevice.map(corner).toPoint()));
    const int rows = qRound(kMarkSize * ratio);
    for (int row = 1; row <= rows; ++row) {
        const double width = row / ratio;
        painter.fillRect(QRectF(isAtLeft ? whole.x() : whole.x() - width,
                                whole.y() - (rows - row + 1) / ratio, width, 1 / ratio),
                         CurrentTheme().Note);
    }
}

// As thin as the screen's pixels allow without one line being thicker than another.
void PaintLine(QPainter& painter, const QRect& line, qreal ratio) {
    const auto whole = [ratio](int place) { return std::round(place * ratio) / ratio; };
    const auto size = [ratio](int length) {
        return (length == 1 ? std::floor(ratio) : std::round(length * ratio)) / ratio;
    };
    painter.fillRect(
        QRectF(whole(line.x()), whole(line.y()), size(line.width()), size(line.height())),
        HairlineColor());
}

}  // namespace

void ButtonBar::LoadIcons(qreal ratio) {
    if (iconsRatio_ == ratio)
        return;
    iconsRatio_ = ratio;
    icons_.clear();
    for (int i = 0; i < Count(); ++i) {
        const int size = metrics_.IconSize;
        icons_.push_back({.Picture = Artwork(buttons_[i].Artwork, QSize(size, size), ratio),
                          .Corner = Artwork(states_[i].Corner, kCornerSize, ratio)});
    }
}

void ButtonBar::paintEvent(QPaintEvent*) {
    LoadIcons(devicePixelRatioF());
    QPainter painter(this);
    PaintGround(painter);
    for (int i = 0; i < Count(); ++i) {
        if (buttons_[i].IsSeparator)
            PaintLine(painter, layout_.Lines[i], devicePixelRatioF());
        else if (!buttons_[i].IsSpring)
            PaintButton(painter, i);
    }
    if (showFocus_ && focusIndex_ >= 0)
        PaintFocus(painter, layout_.Places[focusIndex_]);
}

void ButtonBar::PaintButton(QPainter& painter, int index) const {
    const BarButton& button = buttons_[index];
    const QRect& place = layout_.Places[index];
    const bool enabled = states_[index].Enabled && isEnabled();
    painter.setOpacity(enabled ? 1 : kDisabledOpacity);

    const bool isBelowPointer = enabled && index == hoverIndex_;
    if (states_[index].Pressed || isBelowPointer)
        DrawFace(painter, place, states_[index].Pressed || showDown_);

    const auto within = [&](const QPoint& corner, const QSize& size) {
        return QStyle::visualRect(layoutDirection(), place, QRect(place.topLeft() + corner, size));
    };
    const int left = (metrics_.FaceSize.width() - metrics_.IconSize) / 2;
    const int top = (metrics_.FaceSize.height() - metrics_.IconSize) / 2;
    const QSize icon(metrics_.IconSize, metrics_.IconSize);
    DrawSharp(painter, within({left, top}, icon).topLeft(), icons_[index].Picture);
    const QPoint corner(place.width() - kCornerMargin - kCornerSize.width(),
                        place.height() - kCornerMargin - kCornerSize.height());
    if (!icons_[index].Corner.isNull())
        DrawSharp(painter, within(corner, kCornerSize).topLeft(), icons_[index].Corner);
    else if (button.HasPopup)
        PaintMark(painter, place, devicePixelRatioF(), isRightToLeft());

    if (IsHorizontal() && !button.Caption.isEmpty()) {
        const int textLeft = left + metrics_.IconSize + kTightSpace;
        painter.setPen(CurrentTheme().Text);
        painter.drawText(within({textLeft, 0}, {place.width() - textLeft, place.height()}),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                         button.Caption);
    }
    painter.setOpacity(1);
}

void ButtonBar::PaintGround(QPainter& painter) const {
    QRectF ground = rect();
    if (hasFrame_) {
        painter.fillRect(ground, CurrentTheme().Line);
        const qreal line = std::floor(devicePixelRatioF()) / devicePixelRatioF();
        ground.adjust(line, line, -line, -line);
    }
    painter.fillRect(ground, onBand_ ? BandColor() : CurrentTheme().Ground);
}

void ButtonBar::PaintFocus(QPainter& painter, const QRect& place) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(CurrentTheme().Accent);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        QRectF(place).adjusted(-kRingDistance, -kRingDistance, kRingDistance, kRingDistance),
        kCornerRadius + kRingDistance, kCornerRadius + kRingDistance);
}

}  // namespace orbelle::widgets
