#include "widgets/skin.h"

#include <gtest/gtest.h>

#include <QImage>

namespace orbelle::widgets {
namespace {

// Each pixel of the skin tells where it stands: red its column, green its row.
QPixmap Ruler() {
    QImage skin(26, 40, QImage::Format_RGB32);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 26; ++x)
            skin.setPixelColor(x, y, QColor(x, y, 200));
    return QPixmap::fromImage(skin);
}

QImage Draw(const QRect& place, int ratio) {
    QImage canvas(60 * ratio, 60 * ratio, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    DrawSkin(painter, Ruler(), place);
    return canvas;
}

TEST(SkinTest, DrawsNinePartsPixelExact) {
    // A place of 30 x 25 gives a face of 31 x 26: parts of 4, 23, 4 and 4, 18, 4 pixels.
    const QImage canvas = Draw(QRect(3, 5, 30, 25), 1);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(canvas.pixelColor(3 + i, 5 + i), QColor(i, i, 200));
        EXPECT_EQ(canvas.pixelColor(3 + 27 + i, 5 + i), QColor(22 + i, i, 200));
        EXPECT_EQ(canvas.pixelColor(3 + i, 5 + 22 + i), QColor(i, 36 + i, 200));
        EXPECT_EQ(canvas.pixelColor(3 + 27 + i, 5 + 22 + i), QColor(22 + i, 36 + i, 200));
    }
    // The parts between are stretched without mixing neighbours.
    EXPECT_EQ(canvas.pixelColor(7, 6), QColor(4, 1, 200));
    EXPECT_EQ(canvas.pixelColor(29, 6), QColor(7, 1, 200));
    EXPECT_EQ(canvas.pixelColor(4, 9), QColor(1, 4, 200));
    EXPECT_EQ(canvas.pixelColor(4, 26), QColor(1, 35, 200));
    EXPECT_EQ(canvas.pixelColor(7, 9), QColor(4, 4, 200));
    EXPECT_EQ(canvas.pixelColor(29, 26), QColor(7, 35, 200));
    // Nothing is painted outside.
    for (const QPoint& outside : {QPoint(2, 10), QPoint(34, 10), QPoint(10, 4), QPoint(10, 31)})
        EXPECT_EQ(canvas.pixelColor(outside), QColor(Qt::white));
}

TEST(SkinTest, StaysCrispAtDoubleRatio) {
    const QImage small = Draw(QRect(3, 5, 30, 25), 1);
    const QImage large = Draw(QRect(3, 5, 30, 25), 2);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(large.pixelColor(2 * x + 1, 2 * y + 1), small.pixelColor(x, y));
}

TEST(SkinTest, SkipsPlacesTooSmallForItsCorners) {
    const QImage canvas = Draw(QRect(3, 5, 7, 25), 1);
    EXPECT_EQ(canvas.pixelColor(4, 6), QColor(Qt::white));
}

}  // namespace
}  // namespace orbelle::widgets
