// How the strip of sizes looks.
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "widgets/size_strip.h"
#include "widgets/size_strip_metrics.h"
#include "widgets/theme.h"

namespace orbelle::widgets {

using namespace strip_metrics;

namespace {

constexpr QColor kCheckerColor(0, 0, 0, 30);
constexpr QColor kGroundColors[] = {
    {255, 255, 255}, {255, 255, 255}, {128, 128, 128}, {32, 32, 32}};
constexpr QColor kSkyColor(46, 102, 158);
constexpr QColor kHorizonColor(140, 186, 214);
constexpr QColor kTaskBarColor(28, 31, 36);
constexpr QColor kTaskBarEdgeColor(255, 255, 255, 36);
constexpr int kTaskBarSize = 32;  // the largest picture on it
constexpr int kTaskBarMargin = 6;

// A pencil that points to the lower left, in a square of kMarkSize.
void DrawPencil(QPainter& painter, const QPointF& corner) {
    QPainterPath pencil;
    pencil.addPolygon(QPolygonF({{0, 8}, {0.6, 5.6}, {5.6, 0.6}, {7.4, 2.4}, {2.4, 7.4}}));
    painter.fillPath(pencil.translated(corner), CurrentTheme().Accent);
}

// A circle with its right half filled.
void DrawContrastMark(QPainter& painter, const QPointF& corner) {
    const QRectF circle(corner + QPointF(0.5, 0.5), QSizeF(kMarkSize - 1, kMarkSize - 1));
    painter.setPen(QPen(CurrentTheme().Note, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(circle);
    painter.setBrush(CurrentTheme().Note);
    painter.drawPie(circle, -90 * 16, 180 * 16);
}

}  // namespace

void SizeStrip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(rect(), CurrentTheme().Ground);
    PaintGround(painter);
    for (int part = 0; part < PartCount(); ++part) {
        const bool isEdited = cells_[part].Size == editedSize_;
        if (!isEdited && !PartPlace(part).intersects(event->rect()))
            continue;
        PaintPicture(painter, part);
        PaintLabel(painter, part);
        PaintFrame(painter, part);
    }
}

void SizeStrip::PaintGround(QPainter& painter) const {
    const QRect ground(0, 0, width(), GroundHeight());
    if (ground_ == StripGround::Desktop)
        PaintDesktop(painter, ground);
    else
        painter.fillRect(ground, kGroundColors[static_cast<int>(ground_)]);
    if (ground_ == StripGround::Checks)
        DrawChecker(painter, ground, kCheckerColor);
    painter.fillRect(0, ground.height() - 1, width(), 1, HairlineColor());
    painter.fillRect(isRightToLeft() ? 0 : width() - 1, 0, 1, height(), HairlineColor());
}

bool SizeStrip::LiesOnTaskBar(int size) const {
    return ground_ == StripGround::Desktop && size <= kTaskBarSize;
}

void SizeStrip::PaintDesktop(QPainter& painter, const QRect& ground) const {
    QLinearGradient sky(ground.topLeft(), ground.bottomLeft());
    sky.setColorAt(0, kSkyColor);
    sky.setColorAt(1, kHorizonColor);
    painter.fillRect(ground, sky);
    for (int part = 0; part < PartCount(); ++part) {
        if (!LiesOnTaskBar(cells_[part].Size))
            continue;
        const int height = Side(kTaskBarSize) + 2 * kTaskBarMargin;
        const QRect first = PartPlace(part);
        const QRect bar(isRightToLeft() ? first.right() + 1 - width() : first.left(),
                        ground.height() - height, width(), height);
        painter.fillRect(bar, kTaskBarColor);
        painter.fillRect(QRect(bar.topLeft(), QSize(bar.width(), 1)), kTaskBarEdgeColor);
        break;
    }
}

// On one line; those on the task bar in its middle.
QRect SizeStrip::PicturePlace(int part) const {
    const QRect cell = PartPlace(part);
    const int size = cells_[part].Size, side = Side(size);
    const int margin =
        LiesOnTaskBar(size) ? kTaskBarMargin + (Side(kTaskBarSize) - side) / 2 : kMargin;
    return {cell.left() + (cell.width() - side) / 2, GroundHeight() - margin - side, side, side};
}

void SizeStrip::PaintPicture(QPainter& painter, int part) const {
    const QImage& picture = cells_[part].Picture;
    if (picture.isNull())
        return;
    // From a whole pixel of the screen on, so that none is mixed with its neighbour.
    const QTransform toScreen = painter.deviceTransform();
    const QPointF corner = toScreen.map(QPointF(PicturePlace(part).topLeft()));
    const QPointF whole =
        toScreen.inverted().map(QPointF(std::round(corner.x()), std::round(corner.y())));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(QRectF(whole, QSizeF(picture.size()) * Scale()), picture);
}

void SizeStrip::PaintLabel(QPainter& painter, int part) const {
    const SizeCell& cell = cells_[part];
    QRect place = PartPlace(part);
    place.setTop(GroundHeight());
    painter.setPen(isEnabled() ? CurrentTheme().Text : DisabledColor());
    painter.drawText(place, Qt::AlignCenter, QString::number(cell.Size));

    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = place.center().x() + 0.5,
                 top = place.center().y() + 0.5 - kMarkSize / 2.0;
    const double reach = fontMetrics().horizontalAdvance(QString::number(cell.Size)) / 2.0 + 4;
    if (cell.IsDrawnByHand)
        DrawPencil(painter, {std::round(middle - reach - kMarkSize), std::floor(top)});
    if (!cell.Warning.isEmpty())
        DrawContrastMark(painter, {std::round(middle + reach), std::floor(top)});
    painter.setRenderHint(QPainter::Antialiasing, false);
}

QRectF SizeStrip::FrameOf(int part) const {
    QRectF cell = PartPlace(part);
    cell.setTop(PicturePlace(part).top() - kMargin + 1);
    return cell;
}

QRectF SizeStrip::EditedFrame() const {
    const auto edited = std::ranges::find(cells_, editedSize_, &SizeCell::Size);
    if (edited == cells_.end())
        return {};
    const QRectF frame = FrameOf(static_cast<int>(edited - cells_.begin()));
    const double share = moving_.Share();
    const auto between = [share](const QPointF& from, const QPointF& to) {
        return from + (to - from) * share;
    };
    return {between(frameBefore_.topLeft(), frame.topLeft()),
            between(frameBefore_.bottomRight(), frame.bottomRight())};
}

void SizeStrip::PaintFrame(QPainter& painter, int part) const {
    const bool isEdited = cells_[part].Size == editedSize_;
    const bool hasFocus = this->hasFocus() && part == FocusedPart();
    if (!isEdited && !hasFocus && (part != hovered_ || !isEnabled()))
        return;
    const double pen = isEdited ? 2 : 1;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEdited || hasFocus ? CurrentTheme().Accent : CurrentTheme().Line, pen));
    painter.setBrush(Qt::NoBrush);
    const QRectF cell = isEdited ? EditedFrame() : FrameOf(part);
    painter.drawRoundedRect(cell.adjusted(1 + pen / 2, 1 + pen / 2, -1 - pen / 2, -1 - pen / 2), 4,
                            4);
    if (isEdited && hasFocus) {
        painter.setPen(QPen(CurrentTheme().Accent, 1));
        painter.drawRoundedRect(cell.adjusted(4.5, 4.5, -4.5, -4.5), 2, 2);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace orbelle::widgets
