#include "widgets/track_slider.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

#include "widgets/accessible_slider.h"
#include "widgets/theme.h"

namespace orbelle::widgets {

namespace {

constexpr int kHeight = 20;
constexpr QSize kThumbSize(10, 16);
// How far a drag keeps the thumb away from the end of the track.
constexpr int kDragStop = 5;
constexpr int kWheelNotch = 120;
constexpr int kPauseMilliseconds = 1000;  // ends a run
constexpr int kTickReach = 7;             // above and below the middle
constexpr int kPaintedThickness = 6;

}  // namespace

TrackSlider::TrackSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    InstallAccessibleSlider<TrackSlider>();
    setFixedHeight(kHeight);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

QSize TrackSlider::sizeHint() const {
    return {120, kHeight};
}

void TrackSlider::SetValue(int value) {
    setValue(value);
    // Also an unchanged value takes the thumb from where a drag has left it.
    if (!dragging_)
        PlaceThumb();
}

void TrackSlider::SetNeutral(int value) {
    neutral_ = value;
    update();
}

void TrackSlider::SetGroove(Groove groove, const QColor& color) {
    groove_ = groove;
    color_ = color;
    update();
}

int TrackSlider::TrackWidth() const {
    return qMax(width() - kThumbSize.width(), 0);
}

QPoint TrackSlider::PlaceFrom(const QMouseEvent& event) const {
    const QPoint place = event.position().toPoint();
    return isRightToLeft() ? QPoint(width() - 1 - place.x(), place.y()) : place;
}

QRect TrackSlider::ThumbRect() const {
    return {QPoint(thumbLeft_, (height() - kThumbSize.height()) / 2), kThumbSize};
}

double TrackSlider::PlaceOf(int value) const {
    return kThumbSize.width() / 2.0 +
           (maximum() > 0 ? double(TrackWidth()) * value / maximum() : 0);
}

void TrackSlider::PlaceThumb() {
    const double left = PlaceOf(value()) - kThumbSize.width() / 2.0;
    thumbLeft_ = qBound(0, static_cast<int>(std::nearbyint(left)), TrackWidth());
    update();
}

// `direction` tells on which side of its beginning the drag is: only the end on that side stops it.
void TrackSlider::DragThumb(int left, int direction) {
    const int before = value();
    int next = 0;
    if (direction > 0 && left > TrackWidth() - kDragStop) {
        left = TrackWidth() - kDragStop;
        next = maximum();
    } else if (direction < 0 && left < 0) {
        left = 0;
    } else if (TrackWidth() > 0) {
        next = static_cast<int>(std::nearbyint(double(left) * maximum() / TrackWidth()));
    }
    setValue(next);
    thumbLeft_ = qMax(left, 0);
    update();
    if (value() != before)
        emit Changed(value());
}

void TrackSlider::BeginDrag() {
    EndDrag();
    EndRun();
    dragging_ = true;
    moved_ = false;
    valueBefore_ = value();
    emit Pressed();
}

void TrackSlider::Drag(int value) {
    if (!dragging_)
        return;
    const int before = this->value();
    setValue(value);
    if (this->value() != before)
        emit Changed(this->value());
}

void TrackSlider::TakeValue(int value) {
    if (std::clamp(value, minimum(), maximum()) == this->value())
        return;
    BeginDrag();
    Drag(value);
    EndDrag();
}

void TrackSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPoint place = PlaceFrom(*event);
    BeginDrag();
    if (!ThumbRect().contains(place))
        DragThumb(place.x() - kThumbSize.width() / 2, place.x() < thumbLeft_ ? -1 : 1);
    downX_ = place.x();
    downLeft_ = thumbLeft_;
    isOverThumb_ = true;
    update();
}

void TrackSlider::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = PlaceFrom(*event);
    // A message box that comes up in a drag takes the release for itself.
    if (!(event->buttons() & Qt::LeftButton))
        EndDrag();
    if (dragging_) {
        const int moved = place.x() - downX_;
        moved_ = moved_ || moved != 0;
        DragThumb(downLeft_ + moved, moved);
    } else if (ThumbRect().contains(place) != isOverThumb_) {
        isOverThumb_ = !isOverThumb_;
        update();
    }
}

void TrackSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    if (!dragging_ || moved_ || neutral_ < 0)
        return EndDrag();
    // The first half of a double click, perhaps.
    dragging_ = isOverThumb_ = false;
    running_ = true;
    pause_.start(QApplication::doubleClickInterval(), this);
    PlaceThumb();
}

void TrackSlider::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || neutral_ < 0)
        return mousePressEvent(event);
    if (running_) {
        running_ = false;
        pause_.stop();
        dragging_ = true;
    } else {
        BeginDrag();
    }
    Drag(neutral_);
    EndDrag();
}

void TrackSlider::EndDrag() {
    if (!dragging_)
        return;
    dragging_ = false;
    isOverThumb_ = false;
    update();
    emit Released();
}

// Also the release of a button that is still held tells nothing more.
void TrackSlider::GiveUp() {
    dragging_ = running_ = isOverThumb_ = false;
    pause_.stop();
    if (value() != valueBefore_) {
        SetValue(valueBefore_);
        emit Changed(valueBefore_);
    }
    emit GivenUp();
    PlaceThumb();
}

void TrackSlider::EndRun() {
    pause_.stop();
    if (std::exchange(running_, false))
        emit Released();
}

void TrackSlider::Step(int step) {
    const int before = value();
    if (dragging_)
        return;
    const int next = static_cast<int>(
        std::clamp(before + static_cast<long long>(step), 0LL + minimum(), 0LL + maximum()));
    if (next == before)
        return;
    if (!running_) {
        valueBefore_ = before;
        emit Pressed();
        running_ = true;
    }
    SetValue(next);
    emit Changed(next);
    pause_.start(kPauseMilliseconds, this);
}

// Escape belongs to a drag first.
bool TrackSlider::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && (dragging_ || running_) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QSlider::event(event);
}

void TrackSlider::keyPressEvent(QKeyEvent* event) {
    const int toTheRight = isRightToLeft() ? -singleStep() : singleStep();
    switch (event->key()) {
        case Qt::Key_Left:
            return Step(-toTheRight);
        case Qt::Key_Right:
            return Step(toTheRight);
        case Qt::Key_Down:
            return Step(-singleStep());
        case Qt::Key_Up:
            return Step(singleStep());
        case Qt::Key_PageDown:
            return Step(-pageStep());
        case Qt::Key_PageUp:
            return Step(pageStep());
        case Qt::Key_Home:
            return Step(-INT_MAX);
        case Qt::Key_End:
            return Step(INT_MAX);
        case Qt::Key_Escape:
            if (dragging_ || running_)
                return GiveUp();
            [[fallthrough]];
        default:
            event->ignore();
    }
}

void TrackSlider::wheelEvent(QWheelEvent* event) {
    // A page of sliders is scrolled by the wheel, not changed.
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    // Fine wheels send parts of a notch.
    wheelRest_ += event->angleDelta().y();
    for (; wheelRest_ >= kWheelNotch; wheelRest_ -= kWheelNotch)
        Step(singleStep());
    for (; wheelRest_ <= -kWheelNotch; wheelRest_ += kWheelNotch)
        Step(-singleStep());
    event->accept();
}

void TrackSlider::focusOutEvent(QFocusEvent* event) {
    EndRun();
    QSlider::focusOutEvent(event);
}

void TrackSlider::hideEvent(QHideEvent* event) {
    EndRun();
    QSlider::hideEvent(event);
}

void TrackSlider::timerEvent(QTimerEvent* event) {
    if (event->timerId() == pause_.timerId())
        EndRun();
    else
        QSlider::timerEvent(event);
}

void TrackSlider::resizeEvent(QResizeEvent* event) {
    QSlider::resizeEvent(event);
    PlaceThumb();
}

void TrackSlider::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        EndDrag();
        EndRun();
    }
    QSlider::changeEvent(event);
}

void TrackSlider::leaveEvent(QEvent* event) {
    if (!dragging_) {
        isOverThumb_ = false;
        update();
    }
    QSlider::leaveEvent(event);
}

void TrackSlider::sliderChange(SliderChange change) {
    QSlider::sliderChange(change);
    PlaceThumb();
}

void TrackSlider::PaintGroove(QPainter& painter) const {
    const int left = kThumbSize.width() / 2, right = left + TrackWidth();
    const bool restsWithin = neutral_ > minimum() && neutral_ < maximum();
    const double rest = std::nearbyint(PlaceOf(neutral_));
    if (restsWithin)
        painter.fillRect(QRectF(rest - 0.5, height() / 2.0 - kTickReach, 1, 2 * kTickReach),
                         isEnabled() ? CurrentTheme().Line : HairlineColor());
    const double thumb = QRectF(ThumbRect()).center().x();
    const double from = restsWithin ? rest : left;
    const double lit = isEnabled() ? thumb : from;
    if (groove_ == Groove::Lit || !isEnabled())
        return DrawGroove(painter, left, right, height(), std::min(from, lit), std::max(from, lit));

    const QRectF place(left, (height() - kPaintedThickness) / 2, right - left, kPaintedThickness);
    QLinearGradient colors(place.topLeft(), place.topRight());
    switch (groove_) {
        case Groove::Hues:
            for (int i = 0; i <= 6; ++i)
                colors.setColorAt(i / 6.0, QColor::fromHsv(i % 6 * 60, 200, 235));
            break;
        case Groove::Saturation: {
            const int grey = qGray(color_.rgb());
            colors.setColorAt(0, QColor(grey, grey, grey));
            colors.setColorAt(1, color_);
            break;
        }
        case Groove::Opacity:
        case Groove::Lit: {
            QColor clear = color_;
            clear.setAlpha(0);
            colors.setColorAt(0, clear);
            colors.setColorAt(1, color_);
            break;
        }
    }
    const auto paint = [&](const QBrush& brush, const QPen& pen) {
        painter.setBrush(brush);
        painter.setPen(pen);
        painter.drawRoundedRect(place, kPaintedThickness / 2, kPaintedThickness / 2);
    };
    if (groove_ == Groove::Opacity) {
        painter.setBrushOrigin(place.topLeft());
        paint(GreyChecks(), Qt::NoPen);
        painter.setBrushOrigin(0, 0);
    }
    paint(colors, QPen(CurrentTheme().Line, 1));
    painter.setBrush(Qt::NoBrush);
}

void TrackSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    const QRect thumb = ThumbRect();
    PaintGroove(painter);
    const bool isLit = isEnabled() && (dragging_ || isOverThumb_ || hasFocus());
    painter.setBrush(!isEnabled() ? CurrentTheme().Ground
                     : hasFocus() ? CurrentTheme().Accent
                                  : CurrentTheme().Field);
    painter.setPen(QPen(isLit         ? CurrentTheme().Accent
                        : isEnabled() ? CurrentTheme().Line
                                      : HairlineColor(),
                        1));
    painter.drawRoundedRect(QRectF(thumb).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

}  // namespace orbelle::widgets
