#include "app/color_fields.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "app/color_text.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using graphics::Argb;

constexpr int kSide = 224;
constexpr int kStripWidth = 22;
constexpr int kMost = 255;
constexpr int kLongStep = 10;
constexpr double kRing = 5;
constexpr QColor kCheckerColor(230, 230, 230);

// A hairline around, and the accent while the keys go there.
void DrawFrame(QPainter& painter, const QWidget& field) {
    const int width = field.hasFocus() ? 2 : 1;
    const double half = width / 2.0;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(field.hasFocus() ? widgets::CurrentTheme().Accent : widgets::CurrentTheme().Line,
             width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(field.rect()).adjusted(half, half, -half, -half));
}

void FillOnChecker(QPainter& painter, const QRect& place, const QBrush& brush) {
    painter.fillRect(place, Qt::white);
    widgets::DrawChecker(painter, place, kCheckerColor);
    painter.fillRect(place, brush);
}

// Where a value from 0 to `most` lies on a length of pixels, and which lies there.
double PlaceOf(int value, int most, int length) {
    return value * (length - 1.0) / most;
}
int ValueAt(double place, int most, int length) {
    return std::clamp(qRound(place * most / (length - 1.0)), 0, most);
}

}  // namespace

ColorSquare::ColorSquare(QWidget* parent) : QWidget(parent) {
    setAccessibleName(Words::tr("Saturation and brightness"));
    setToolTip(accessibleName());
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(ColorSquare::sizeHint());
}

void ColorSquare::Show(int hue, int saturation, int brightness) {
    hue_ = hue;
    saturation_ = saturation;
    brightness_ = brightness;
    setAccessibleDescription(
        Words::tr("saturation %1, brightness %2").arg(saturation).arg(brightness));
    update();
}

QSize ColorSquare::sizeHint() const {
    return {kSide, kSide};
}

void ColorSquare::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient saturations(0, 0, width(), 0);
    saturations.setColorAt(0, Qt::white);
    saturations.setColorAt(1, QColor::fromHsv(hue_, kMost, kMost));
    painter.fillRect(rect(), saturations);
    QLinearGradient shades(0, 0, 0, height());
    shades.setColorAt(0, QColor(0, 0, 0, 0));
    shades.setColorAt(1, Qt::black);
    painter.fillRect(rect(), shades);
    DrawFrame(painter, *this);

    painter.setRenderHint(QPainter::Antialiasing);
    // Whole also in the corners.
    const auto inside = [](double place, int length) {
        return std::clamp(place + 0.5, kRing + 2, length - kRing - 2);
    };
    const QPointF place(inside(PlaceOf(saturation_, kMost, width()), width()),
                        inside(PlaceOf(kMost - brightness_, kMost, height()), height()));
    painter.setPen(QPen(QColor(0, 0, 0, 160), 3.5));
    painter.drawEllipse(place, kRing, kRing);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawEllipse(place, kRing, kRing);
}

void ColorSquare::Choose(int saturation, int brightness) {
    saturation = std::clamp(saturation, 0, kMost);
    brightness = std::clamp(brightness, 0, kMost);
    Show(hue_, saturation, brightness);
    emit Chosen(saturation, brightness);
}

void ColorSquare::ChooseAt(const QPointF& place) {
    Choose(ValueAt(place.x(), kMost, width()), kMost - ValueAt(place.y(), kMost, height()));
}

void ColorSquare::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        ChooseAt(event->position());
}

void ColorSquare::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton)
        ChooseAt(event->position());
}

void ColorSquare::keyPressEvent(QKeyEvent* event) {
    const int step = event->modifiers() & Qt::ShiftModifier ? kLongStep : 1;
    switch (event->key()) {
        case Qt::Key_Left:
            return Choose(saturation_ - step, brightness_);
        case Qt::Key_Right:
            return Choose(saturation_ + step, brightness_);
        case Qt::Key_Down:
            return Choose(saturation_, brightness_ - step);
        case Qt::Key_Up:
            return Choose(saturation_, brightness_ + step);
        default:
            QWidget::keyPressEvent(event);
    }
}

ColorStrip::ColorStrip(QWidget* parent) : QSlider(Qt::Vertical, parent) {
    setFocusPolicy(Qt::StrongFocus);
    setPageStep(kLongStep);
    setFixedSize(ColorStrip::sizeHint());
}

void ColorStrip::ShowColors(const QGradientStops& colors) {
    colors_ = colors;
    update();
}

QSize ColorStrip::sizeHint() const {
    return {kStripWidth, kSide};
}

void ColorStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient row(0, 0, 0, height());
    row.setStops(colors_);
    FillOnChecker(painter, rect(), row);
    DrawFrame(painter, *this);

    painter.setRenderHint(QPainter::Antialiasing);
    const double y = PlaceOf(maximum() - value(), maximum(), height()) + 0.5;
    constexpr double kHalf = 3;
    const QRectF thumb(1, std::clamp(y, kHalf + 1, height() - kHalf - 1) - kHalf, width() - 2,
                       2 * kHalf);
    painter.setPen(QPen(QColor(0, 0, 0, 160), 3.5));
    painter.drawRoundedRect(thumb.adjusted(1, 0, -1, 0), 2, 2);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawRoundedRect(thumb.adjusted(1, 0, -1, 0), 2, 2);
}

void ColorStrip::MoveTo(double y) {
    setValue(maximum() - ValueAt(y, maximum(), height()));
}

void ColorStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        MoveTo(event->position().y());
}

void ColorStrip::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton)
        MoveTo(event->position().y());
}

void ColorStrip::mouseReleaseEvent(QMouseEvent*) {}

ColorComparison::ColorComparison(Argb oldColor, QWidget* parent) : QWidget(parent), old_(oldColor) {
    setFixedHeight(ColorComparison::sizeHint().height());
}

void ColorComparison::Show(Argb newColor) {
    new_ = newColor;
    const QString colors =
        Words::tr("new %1, old %2").arg(ColorText(new_, true), ColorText(old_, true));
    setAccessibleName(colors);
    setToolTip(colors);
    update();
}

QSize ColorComparison::sizeHint() const {
    return {120, 40};
}

void ColorComparison::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int middle = width() / 2;
    const QRect left(0, 0, middle, height()), right(middle, 0, width() - middle, height());
    FillOnChecker(painter, isRightToLeft() ? right : left, QColor::fromRgba(new_));
    FillOnChecker(painter, isRightToLeft() ? left : right, QColor::fromRgba(old_));
    DrawFrame(painter, *this);
}

ColorCell::ColorCell(QWidget* parent) : QAbstractButton(parent) {
    setAccessibleName(Words::tr("No color yet"));
    setFocusPolicy(Qt::StrongFocus);
    setEnabled(false);
    setFixedSize(ColorCell::sizeHint());
}

void ColorCell::Show(Argb color) {
    color_ = color;
    setEnabled(true);
    setAccessibleName(ColorText(color, true));
    setToolTip(accessibleName());
    update();
}

QSize ColorCell::sizeHint() const {
    return {30, 30};
}

void ColorCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled()) {
        painter.setPen(widgets::HairlineColor());
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        return;
    }
    FillOnChecker(painter, rect(), QColor::fromRgba(color_));
    DrawFrame(painter, *this);
}

}  // namespace orbelle::app
