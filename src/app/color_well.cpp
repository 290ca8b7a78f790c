#include "app/color_well.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "widgets/accessible_role.h"
#include "widgets/theme.h"

namespace orbelle::app {
namespace {

constexpr QColor kCheckerColor(230, 230, 230);
constexpr int kMargin = 3;
constexpr int kFocusWidth = 2, kFocusRoom = 3;

}  // namespace

ColorWell::ColorWell(const QString& name, QWidget* parent) : QWidget(parent) {
    widgets::InstallAccessibleRole<ColorWell, QAccessible::Button>();
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(ColorWell::sizeHint());
}

void ColorWell::Show(graphics::Argb color, int penWidth) {
    color_ = color;
    penWidth_ = penWidth;
    setAccessibleDescription(QColor::fromRgba(color).name(QColor::HexArgb));
    update();
}

void ColorWell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    widgets::DrawChecker(painter, rect(), kCheckerColor);
    const auto drawEdge = [&](const QRectF& place, const QColor& color, int width) {
        const double half = width / 2.0;
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(place.adjusted(half, half, -half, -half));
    };
    // The focus lies around the well, whatever its color is.
    QRect well = rect();
    if (hasFocus()) {
        painter.fillRect(rect(), widgets::CurrentTheme().Field);
        drawEdge(rect(), widgets::CurrentTheme().Accent, kFocusWidth);
        well.adjust(kFocusRoom, kFocusRoom, -kFocusRoom, -kFocusRoom);
        painter.fillRect(well, Qt::white);
        widgets::DrawChecker(painter, well, kCheckerColor);
    }
    if (graphics::AlphaOf(color_) != 0)
        painter.fillRect(well.adjusted(kMargin, kMargin, -kMargin, -kMargin),
                         QColor::fromRgba(color_));
    drawEdge(well, widgets::CurrentTheme().Line, penWidth_);
}

void ColorWell::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit Clicked();
}

void ColorWell::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit DoubleClicked();
}

void ColorWell::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space)
        emit Clicked();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit DoubleClicked();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace orbelle::app
