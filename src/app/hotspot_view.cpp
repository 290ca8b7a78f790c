#include "app/hotspot_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <algorithm>
#include <cmath>

#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

// Logical pixels.
constexpr int kMostShown = 320;  // a side
constexpr int kRoom = 20;        // around the picture, for the cross's arms
constexpr int kArm = 12;
constexpr int kSmallestBox = 5;  // that is seen between the arms
constexpr QColor kCheckColor(230, 230, 230);
constexpr QColor kCrossColor(32, 32, 32);

constexpr int kStep = 1, kWideStep = 8;

int Rounded(double number) {
    return static_cast<int>(std::lround(number));
}

QRect Grown(const QRect& rect, int by) {
    return rect.adjusted(-by, -by, by, by);
}

}  // namespace

HotspotView::HotspotView(const QImage& picture, double scale, QWidget* parent)
    : QWidget(parent), picture_(picture), scale_(scale) {
    const double room = kMostShown * scale / std::max(picture.width(), picture.height());
    cell_ = room < 1 ? room : std::floor(room);
    shown_ = QSize(std::max(Rounded(picture.width() * cell_), 1),
                   std::max(Rounded(picture.height() * cell_), 1));
    setFixedSize(HotspotView::sizeHint());
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setAccessibleName(Words::tr("Hot spot"));
    setToolTip(Words::tr("Click or drag. Arrow keys move the cross by a pixel, with Shift by 8."));
    SetValue({});
}

QSize HotspotView::sizeHint() const {
    constexpr int kSide = kMostShown + 2 * kRoom;
    return {kSide, kSide};
}

void HotspotView::SetValue(formats::Hotspot hotspot) {
    hotspot_ = {std::clamp(hotspot.X, 0, picture_.width() - 1),
                std::clamp(hotspot.Y, 0, picture_.height() - 1)};
    setAccessibleDescription(QString("X %1, Y %2").arg(hotspot_.X).arg(hotspot_.Y));
    update();
}

QPointF HotspotView::Corner() const {
    return QPointF(width() - shown_.width() / scale_, height() - shown_.height() / scale_) / 2;
}

QPointF HotspotView::PlaceOf(formats::Hotspot hotspot) const {
    return Corner() + QPointF(hotspot.X + 0.5, hotspot.Y + 0.5) * cell_ / scale_;
}

void HotspotView::MoveTo(formats::Hotspot hotspot) {
    const formats::Hotspot before = hotspot_;
    SetValue(hotspot);
    if (hotspot_ != before)
        emit Moved(hotspot_);
}

void HotspotView::Follow(const QPointF& place) {
    const QPointF pixel = (place - Corner()) * scale_ / cell_;
    MoveTo({static_cast<int>(std::floor(pixel.x())), static_cast<int>(std::floor(pixel.y()))});
}

void HotspotView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Follow(event->position());
}

void HotspotView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton)
        Follow(event->position());
}

void HotspotView::keyPressEvent(QKeyEvent* event) {
    const int step = event->modifiers() & Qt::ShiftModifier ? kWideStep : kStep;
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveTo({hotspot_.X - step, hotspot_.Y});
        case Qt::Key_Right:
            return MoveTo({hotspot_.X + step, hotspot_.Y});
        case Qt::Key_Up:
            return MoveTo({hotspot_.X, hotspot_.Y - step});
        case Qt::Key_Down:
            return MoveTo({hotspot_.X, hotspot_.Y + step});
        default:
            QWidget::keyPressEvent(event);
    }
}

void HotspotView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int pen = hasFocus() ? 2 : 1;
    const QColor edge = hasFocus() ? widgets::CurrentTheme().Accent : widgets::HairlineColor();
    painter.fillRect(rect(), edge);
    painter.fillRect(Grown(rect(), -pen), widgets::BandColor());

    // In device pixels from here on.
    const QTransform toDevice = painter.deviceTransform();
    const QPointF corner = toDevice.map(Corner());
    const QRect place(QPoint(static_cast<int>(std::floor(corner.x() + 0.5)),
                             static_cast<int>(std::floor(corner.y() + 0.5))),
                      shown_);
    painter.setTransform(toDevice.inverted() * painter.worldTransform());
    painter.fillRect(place, Qt::white);
    painter.setClipRect(place);
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(scale_, scale_);
    widgets::DrawChecker(painter, QRect(0, 0, kMostShown, kMostShown), kCheckColor);
    painter.restore();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, cell_ < 1);
    painter.drawImage(place, picture_);
    painter.setClipping(false);
    DrawCross(painter, place.topLeft());
}

// Dark with a light edge, so that it is seen on any picture. The pixel itself stays free.
void HotspotView::DrawCross(QPainter& painter, const QPoint& corner) const {
    const int line = std::max(Rounded(scale_), 1);
    const int side = std::max(static_cast<int>(cell_), 1);
    const QRect pixel(
        corner + QPoint(static_cast<int>(hotspot_.X * cell_), static_cast<int>(hotspot_.Y * cell_)),
        QSize(side, side));
    const QRect box = Grown(pixel, std::max((Rounded(kSmallestBox * scale_) - side + 1) / 2, 0));
    // An arm is a device pixel thicker where it would not be in the middle.
    const int toArm = (box.width() - line) / 2;
    const int length = Rounded(kArm * scale_) + line;
    const QRect across = box.adjusted(-length, toArm, length, -toArm);
    const QRect down = box.adjusted(toArm, -length, -toArm, length);
    const auto cross = [&](int edge) {
        return QRegion(Grown(box, line + edge)) + Grown(across, edge) + Grown(down, edge) -
               QRegion(box);
    };
    for (const QRect& part : cross(line))
        painter.fillRect(part, Qt::white);
    for (const QRect& part : cross(0))
        painter.fillRect(part, kCrossColor);
}

}  // namespace orbelle::app
