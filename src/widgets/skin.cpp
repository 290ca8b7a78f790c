#include "widgets/skin.h"

namespace orbelle::widgets {

void DrawSkin(QPainter& painter, const QPixmap& skin, const QRect& place) {
    constexpr int kCorner = 4;
    const int innerWidth = place.width() - 7;
    const int innerHeight = place.height() - 7;
    if (innerWidth <= 0 || innerHeight <= 0)
        return;
    const int x[] = {place.x(), place.x() + kCorner, place.x() + kCorner + innerWidth};
    const int y[] = {place.y(), place.y() + kCorner, place.y() + kCorner + innerHeight};
    const int width[] = {kCorner, innerWidth, kCorner};
    const int height[] = {kCorner, innerHeight, kCorner};
    constexpr int kSourceX[] = {0, 4, 22};
    constexpr int kSourceY[] = {0, 4, 36};
    constexpr int kSourceHeight[] = {4, 32, 4};

    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            painter.drawPixmap(QRect(x[column], y[row], width[column], height[row]), skin,
                               QRect(kSourceX[column], kSourceY[row], kCorner, kSourceHeight[row]));
    painter.restore();
}

}  // namespace orbelle::widgets
