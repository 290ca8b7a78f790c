#include "widgets/skin.h"

#include <gtest/gtest.h>

#include <QImage>

namespace orbelle::widgets {
namespace {

// With a skin whose pixels tell where they stand: red the column, green the row.
QImage Draw(const QRect& place, int ratio) {
    QImage skin(26, 40, QImage::Format_RGB32);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 26; ++x)
            skin.setPixelColor(x, y, QColor(x, y, 200));
    QImage canvas(60 * ratio, 60 * ratio, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    DrawSkin(painter, QPixmap::fromImage(skin), place);
    return canvas;
}

TEST(SkinTest, DrawsNinePartsPixelExactAndCrispAtDoubleRatio) {
    // A place of 30 x 25 gives a face of 31 x 26: parts of 4, 23, 4 and 4, 18, 4 pixels. Those
    // between the corners are stretched without mixing neighbours.
    const QImage canvas = Draw(QRect(3, 5, 30, 25), 1);
    const std::pair<QPoint, QPoint> pixels[] = {
        {{3, 5}, {0, 0}},   {{6, 8}, {3, 3}},   {{30, 5}, {22, 0}},   {{33, 8}, {25, 3}},
        {{3, 27}, {0, 36}}, {{6, 30}, {3, 39}}, {{30, 27}, {22, 36}}, {{33, 30}, {25, 39}},
        {{7, 6}, {4, 1}},   {{29, 6}, {7, 1}},  {{4, 9}, {1, 4}},     {{4, 26}, {1, 35}},
        {{7, 9}, {4, 4}},   {{29, 26}, {7, 35}}};
    for (const auto& [place, part] : pixels)
        EXPECT_EQ(canvas.pixelColor(place), QColor(part.x(), part.y(), 200))
            << place.x() << ", " << place.y();
    for (const QPoint& outside : {QPoint(2, 10), QPoint(34, 10), QPoint(10, 4), QPoint(10, 31)})
        EXPECT_EQ(canvas.pixelColor(outside), QColor(Qt::white));

    const QImage large = Draw(QRect(3, 5, 30, 25), 2);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(large.pixelColor(2 * x + 1, 2 * y + 1), canvas.pixelColor(x, y));
    EXPECT_EQ(Draw(QRect(3, 5, 7, 25), 1).pixelColor(4, 6), QColor(Qt::white))
        << "too small for the corners";
}

}  // namespace
}  // namespace orbelle::widgets
