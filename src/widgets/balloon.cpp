#include "widgets/balloon.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "widgets/accessible_role.h"
#include "widgets/chrome.h"

namespace orbelle::widgets {

namespace {

constexpr double kCornerRadius = 6;
constexpr int kWidth = 190;
constexpr int kTextWidth = 180;
constexpr int kTextLeft = 5;
constexpr int kTextTopPointingUp = 18;
constexpr int kTextTopPointingDown = 10;
constexpr int kArrowHeight = 10;
// The owners of balloons place them so that this pixel is over what they are about.
constexpr int kArrowTip = 35;
constexpr int kArrowWidth = 14;
constexpr int kHeightAroundText = 28;

}  // namespace

Balloon::Balloon(QWidget* parent) : QWidget(parent) {
    InstallAccessibleRole<Balloon, QAccessible::AlertMessage>();
    setFont(ChromeFont(8));
    SetText({});
}

void Balloon::SetText(const QString& text) {
    text_ = text;
    const QRect room(0, 0, kTextWidth, QWIDGETSIZE_MAX);
    setFixedSize(kWidth, kHeightAroundText +
                             fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height());
    setAccessibleName(text);
    update();
}

void Balloon::SetPointsDown(bool pointsDown) {
    pointsDown_ = pointsDown;
    update();
}

void Balloon::showEvent(QShowEvent* event) {
    raise();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    QWidget::showEvent(event);
}

// Without this the press would go through to what lies below.
void Balloon::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Balloon::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
}

void Balloon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    // One outline, pointing up, serves both ways.
    if (pointsDown_) {
        painter.translate(0, height());
        painter.scale(1, -1);
    }
    QPainterPath body;
    body.addRoundedRect(QRectF(rect()).adjusted(0.5, kArrowHeight + 0.5, -0.5, -0.5), kCornerRadius,
                        kCornerRadius);
    QPainterPath arrow;
    arrow.moveTo(kArrowTip + 0.5, 0.5);
    arrow.lineTo(kArrowTip + kArrowWidth + 0.5, kArrowHeight + 1.5);
    arrow.lineTo(kArrowTip + 0.5, kArrowHeight + 1.5);
    arrow.closeSubpath();
    painter.setBrush(kTipColor);
    painter.setPen(QPen(kTipEdgeColor, 1));
    painter.drawPath(body.united(arrow));
    painter.restore();

    painter.setPen(Qt::black);
    const int top = pointsDown_ ? kTextTopPointingDown : kTextTopPointingUp;
    painter.drawText(QRect(kTextLeft, top, kTextWidth, height() - top), Qt::TextWordWrap, text_);
}

}  // namespace orbelle::widgets
