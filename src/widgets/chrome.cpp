#include "widgets/chrome.h"

#include <QPainter>

namespace orbelle::widgets {

QFont ChromeFont(double points) {
    QFont font(QStringList{"Verdana", "DejaVu Sans"});
    font.setPointSizeF(points);
    return font;
}

void DrawChecker(QPainter& painter, const QRect& place, const QColor& color) {
    constexpr int kCell = 5;
    for (int y = 0; y < place.height(); y += kCell)
        for (int x = y % (2 * kCell); x < place.width(); x += 2 * kCell)
            painter.fillRect(QRect(place.x() + x, place.y() + y, kCell, kCell) & place, color);
}

void DrawChevron(QPainter& painter, const QPointF& middle) {
    const QPointF chevron[] = {middle + QPointF(-4, -2), middle + QPointF(0, 2),
                               middle + QPointF(4, -2)};
    painter.drawPolyline(chevron, 3);
}

void DrawGroove(QPainter& painter, int left, int right, int height, double filled) {
    constexpr int kThickness = 4;
    QRectF groove(left, (height - kThickness) / 2, right - left, kThickness);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kHairlineColor);
    painter.drawRoundedRect(groove, kThickness / 2, kThickness / 2);
    groove.setWidth(filled);
    painter.setBrush(kAccentColor);
    painter.drawRoundedRect(groove, kThickness / 2, kThickness / 2);
}

}  // namespace orbelle::widgets
