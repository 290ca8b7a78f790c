#include "widgets/balloon.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include "widgets/accessible_role.h"
#include "widgets/theme.h"

namespace orbelle::widgets {

namespace {

constexpr QSize kTextRoom(180, 10000);  // at the most
constexpr int kPadding = 10;

// From the tip, which is at the origin, to the body's edge.
QPolygonF Arrow(const BalloonPlace& place) {
    const double half = kBalloonArrowWidth / 2.0, length = place.ArrowLength + 1;
    switch (place.Side) {
        case BalloonSide::Below:
            return QPolygonF({{0, 0.5}, {half, length}, {-half, length}});
        case BalloonSide::Above:
            return QPolygonF({{0, -0.5}, {half, -length}, {-half, -length}});
        case BalloonSide::Right:
            return QPolygonF({{0.5, 0}, {length, half}, {length, -half}});
        case BalloonSide::Left:
            break;
    }
    return QPolygonF({{-0.5, 0}, {-length, half}, {-length, -half}});
}

}  // namespace

Balloon::Balloon(QWidget* parent) : QWidget(parent) {
    InstallAccessibleRole<Balloon, QAccessible::AlertMessage>();
    setFont(ChromeFont(8));
    SetText({});
}

void Balloon::SetText(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    update();
}

QSize Balloon::BodySize() const {
    return fontMetrics()
               .boundingRect(QRect(QPoint(0, 0), kTextRoom), Qt::TextWordWrap, text_)
               .size() +
           QSize(2 * kPadding, 2 * kPadding);
}

void Balloon::Stand(const BalloonPlace& place) {
    if (place == place_)
        return;
    place_ = place;
    const QRect arrow = ArrowRect(place);
    setGeometry(place.Body | arrow);
    // Beside the arrow a press goes through to what lies below.
    setMask(QRegion(place.Body.translated(-pos())) |
            arrow.adjusted(-1, -1, 1, 1).translated(-pos()));
    update();
}

void Balloon::showEvent(QShowEvent* event) {
    raise();
    coming_.Start();
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
    painter.setOpacity(coming_.Share());
    painter.translate(-pos());
    QPainterPath body;
    body.addRoundedRect(QRectF(place_.Body).adjusted(0.5, 0.5, -0.5, -0.5), kBalloonCorner,
                        kBalloonCorner);
    QPainterPath arrow;
    arrow.addPolygon(Arrow(place_).translated(place_.Tip));
    arrow.closeSubpath();
    painter.setBrush(CurrentTheme().Field);
    painter.setPen(QPen(CurrentTheme().Line, 1));
    painter.drawPath(body.united(arrow));
    painter.setPen(CurrentTheme().Text);
    // Wrapped as it was measured: in a box of the text's own width words may fall otherwise.
    QRect room(place_.Body.topLeft() + QPoint(kPadding, kPadding), kTextRoom);
    if (layoutDirection() == Qt::RightToLeft)
        room.moveRight(place_.Body.right() - kPadding);
    painter.drawText(room, Qt::TextWordWrap, text_);
}

}  // namespace orbelle::widgets
