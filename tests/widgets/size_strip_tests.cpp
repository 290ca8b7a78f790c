#include "widgets/size_strip.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "support/hands.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;

// Every pixel another colour, all opaque.
QImage Colorful(int side) {
    QImage picture(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            picture.setPixel(x, y, qRgb(x * 7, y * 5, (x + y) % 2 * 200));
    return picture;
}

class SizeStripTest : public ::testing::Test {
protected:
    SizeStripTest() {
        strip.SetCells({{64, Colorful(64), false, ""},
                        {32, Colorful(32), true, ""},
                        {16, Colorful(16), true, "Hard to see"}});
        strip.resize(strip.sizeHint());
        QObject::connect(&strip, &SizeStrip::Clicked, [this](int size, bool byMouse) {
            told += QString(" %1%2").arg(size).arg(byMouse ? "m" : "k");
        });
        QObject::connect(&strip, &SizeStrip::MenuWanted,
                         [this](int size) { told += QString(" menu%1").arg(size); });
    }
    QString Told() { return std::exchange(told, {}); }
    QPointF Middle(int size) { return strip.CellPlace(size).center(); }

    // What the strip shows on a screen of that scale.
    QImage Grab(double ratio) {
        QImage shown((QSizeF(strip.size()) * ratio).toSize(), QImage::Format_RGB32);
        shown.setDevicePixelRatio(ratio);
        strip.render(&shown);
        return shown;
    }

    SizeStrip strip;
    QString told;
};

// Found anywhere in `shown`, pixel by pixel.
bool Holds(const QImage& shown, const QImage& picture) {
    const auto isAt = [&](int left, int top) {
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (shown.pixel(left + x, top + y) != picture.pixel(x, y))
                    return false;
        return true;
    };
    for (int top = 0; top + picture.height() <= shown.height(); ++top)
        for (int left = 0; left + picture.width() <= shown.width(); ++left)
            if (isAt(left, top))
                return true;
    return false;
}

TEST_F(SizeStripTest, PicturesHaveTheirTruePixelsOnEveryGround) {
    for (int ground = 0; ground < kStripGrounds; ++ground) {
        strip.SetGround(static_cast<StripGround>(ground));
        for (const int size : {64, 32, 16})
            EXPECT_TRUE(Holds(Grab(1), Colorful(size))) << size << " on " << ground;
    }
    strip.SetDoubled(true);
    strip.resize(strip.sizeHint());
    EXPECT_EQ(strip.height(), 2 * 64 + 40);
    for (const int size : {64, 32, 16})
        EXPECT_TRUE(Holds(Grab(1), Colorful(size).scaled(2 * size, 2 * size))) << size;
}

TEST_F(SizeStripTest, ClicksAndKeysChooseACell) {
    Click(strip, Middle(32));
    EXPECT_EQ(Told(), " 32m");
    SendMouse(strip, QEvent::MouseButtonDblClick, Middle(32), Qt::LeftButton, Qt::LeftButton);
    Press(strip, {strip.width() - 1.0, 5});
    SendMouse(strip, QEvent::MouseButtonPress, Middle(16), Qt::RightButton, Qt::RightButton);
    EXPECT_EQ(Told(), "");
    const QPoint at = Middle(16).toPoint();
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, at, strip.mapToGlobal(at));
    QApplication::sendEvent(&strip, &wanted);
    EXPECT_EQ(Told(), " menu16");

    strip.show();
    strip.activateWindow();
    strip.SetEditedSize(32);
    strip.setFocus();
    QApplication::processEvents();
    EXPECT_EQ(strip.FocusedPart(), 1) << "where the user is";
    Strike(strip, Qt::Key_Left);
    Strike(strip, Qt::Key_Left);
    Strike(strip, Qt::Key_Space);
    Strike(strip, Qt::Key_End);
    Strike(strip, Qt::Key_Return);
    Strike(strip, Qt::Key_Menu);
    EXPECT_EQ(Told(), " 64k 16k menu16");
    strip.SetCells({{256, {}, false, ""}, {16, {}, false, ""}});
    EXPECT_EQ(strip.FocusedPart(), 1) << "the same size";
}

TEST_F(SizeStripTest, TellsWhatEachCellIs) {
    strip.SetEditedSize(32);
    EXPECT_EQ(strip.PartName(0), "64 x 64, from the master");
    EXPECT_EQ(strip.PartName(1), "32 x 32, drawn by hand");
    EXPECT_EQ(strip.PartValue(2), "Hard to see");
    EXPECT_FALSE(strip.PartState(0).selected);
    EXPECT_TRUE(strip.PartState(1).selected);
    strip.show();
    QHelpEvent help(QEvent::ToolTip, Middle(16).toPoint(), strip.mapToGlobal(Middle(16).toPoint()));
    QApplication::sendEvent(&strip, &help);
    EXPECT_EQ(QToolTip::text(), "16 x 16, drawn by hand\nHard to see");
}

// A mark stands beside the number, and only where it belongs.
TEST_F(SizeStripTest, MarksAreSeen) {
    const auto countDrawn = [this](int size) {
        const QImage shown = Grab(1);
        const QRect label = strip.CellPlace(size).adjusted(3, 64 + 20, -3, -3);
        int count = 0;
        for (int y = label.top(); y <= label.bottom(); ++y)
            for (int x = label.left(); x <= label.right(); ++x)
                count += QColor(shown.pixel(x, y)) != CurrentTheme().Ground;
        return count;
    };
    EXPECT_GT(countDrawn(32), countDrawn(64) + 10);
    EXPECT_GT(countDrawn(16), countDrawn(32) + 10);
}

}  // namespace
}  // namespace orbelle::widgets
