#include "widgets/slider_track.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <utility>

#include "widgets/slider_scale.h"
#include "widgets/theme.h"

namespace orbelle::widgets {

namespace {

constexpr int kThumbSize = 16;
constexpr int kMargin = kSpace;
constexpr QSize kPopupSize(kMargin + kTrackTravel + kThumbSize + kMargin,
                           kMargin + kThumbSize + kMargin);

}  // namespace

SliderTrack::SliderTrack(QWidget* parent) : QWidget(parent, Qt::Popup) {
    // A press beside the open track only closes it: not also what lies below, which may be the
    // button that would open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    resize(kPopupSize);
}

void SliderTrack::SetPlace(double place) {
    place_ = place;
    update();
}

int SliderTrack::Travel() const {
    return qMax(width() - 2 * kMargin - kThumbSize, 1);
}

void SliderTrack::OpenAt(const QWidget& control) {
    resize(control.width(), height());
    const QRect room = control.screen()->availableGeometry();
    QPoint corner = control.mapToGlobal(QPoint(0, control.height()));
    if (corner.y() + height() > room.bottom())
        corner.ry() -= control.height() + height();
    corner.rx() = qMax(corner.x(), room.left());
    move(corner);
    show();
}

QRectF SliderTrack::ThumbRect() const {
    return {kMargin + place_ * Travel() / kTrackTravel, kMargin, kThumbSize, kThumbSize};
}

void SliderTrack::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), CurrentTheme().Line);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), CurrentTheme().Ground);

    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF thumb = ThumbRect();
    DrawGroove(painter, kMargin, width() - kMargin, height(), kMargin, thumb.center().x());
    painter.setBrush(CurrentTheme().Field);
    painter.setPen(QPen(dragging_ ? CurrentTheme().Accent : CurrentTheme().Line, 1));
    painter.drawEllipse(thumb.adjusted(0.5, 0.5, -0.5, -0.5));
}

void SliderTrack::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && ThumbRect().contains(event->position())) {
        EndDrag();
        dragging_ = true;
        update();
        emit Pressed();
        return;
    }
    // The base closes the pop-up on a press beside it.
    QWidget::mousePressEvent(event);
}

void SliderTrack::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton))
        EndDrag();
    if (dragging_)
        emit Dragged((event->position().x() - kMargin - kThumbSize / 2) * kTrackTravel / Travel() +
                     kThumbSize / 2);
}

void SliderTrack::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        EndDrag();
}

void SliderTrack::EndDrag() {
    if (!dragging_)
        return;
    dragging_ = false;
    update();
    emit Released();
}

void SliderTrack::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Down:
            emit Stepped(-1);
            break;
        case Qt::Key_Right:
        case Qt::Key_Up:
            emit Stepped(1);
            break;
        case Qt::Key_Escape:
            if (std::exchange(dragging_, false)) {
                update();
                emit GivenUp();
                break;
            }
            [[fallthrough]];
        default:
            QWidget::keyPressEvent(event);
    }
}

void SliderTrack::hideEvent(QHideEvent* event) {
    EndDrag();
    QWidget::hideEvent(event);
}

}  // namespace orbelle::widgets
