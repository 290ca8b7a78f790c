#include "app/color_well.h"

#include <gtest/gtest.h>

#include <QImage>

#include "support/hands.h"

namespace orbelle::app {
namespace {

using namespace orbelle::testing;

TEST(ColorWellTest, MouseAndKeysClickAndDoubleClick) {
    ColorWell well("Foreground colour");
    std::string told;
    QObject::connect(&well, &ColorWell::Clicked, [&] { told += 'c'; });
    QObject::connect(&well, &ColorWell::DoubleClicked, [&] { told += 'd'; });
    Click(well, {10, 10});
    SendMouse(well, QEvent::MouseButtonPress, {10, 10}, Qt::RightButton, Qt::RightButton);
    SendMouse(well, QEvent::MouseButtonDblClick, {10, 10}, Qt::LeftButton, Qt::LeftButton);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A, Qt::Key_Enter})
        Strike(well, key);
    EXPECT_EQ(told, "cdcdd");
}

TEST(ColorWellTest, ShowsItsColorOnACheckerAndTheFocusAround) {
    ColorWell well("Foreground colour");
    well.Show(0x800000FF, 2);
    well.show();
    const auto pixel = [&](int x, int y) { return well.grab().toImage().pixel(x, y); };
    EXPECT_EQ(pixel(1, 1), 0xFF464646) << "the outline is two pixels wide";
    EXPECT_EQ(pixel(2, 2), 0xFFE6E6E6) << "the checker begins with a square";
    EXPECT_EQ(pixel(5, 2), 0xFFFFFFFF);
    EXPECT_NEAR(qRed(pixel(6, 4)), 127, 1) << "blue of half alpha on white";
    EXPECT_EQ(qBlue(pixel(6, 4)), 255);
    well.activateWindow();
    QApplication::processEvents();
    well.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(pixel(0, 0), 0xFF3A96FF);
}

}  // namespace
}  // namespace orbelle::app
