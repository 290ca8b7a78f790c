#include "app/settings.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "app/file_dialog.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

TEST(MainWindowPlaceTest, IsWhollyOnTheScreen) {
    const QRect screen(100, 50, 1400, 960);
    const struct {
        const char* Name;
        QRect Stored;
        QRect Place;
    } cases[] = {
        {"nothing stored", QRect(0, 0, 0, 0), QRect(250, 150, 1100, 760)},
        {"stored size, no corner", QRect(0, 0, 400, 360), QRect(600, 350, 400, 360)},
        {"one coordinate 0 is no reason to centre", QRect(0, 70, 400, 360),
         QRect(100, 70, 400, 360)},
        {"as stored", QRect(300, 200, 800, 600), QRect(300, 200, 800, 600)},
        {"beyond the right and bottom edges", QRect(1400, 900, 800, 600),
         QRect(700, 410, 800, 600)},
        {"left and above", QRect(-500, -20, 800, 600), QRect(100, 50, 800, 600)},
        {"larger than the screen", QRect(300, 200, 9000, 9000), screen},
    };
    for (const auto& [name, stored, place] : cases)
        EXPECT_EQ(MainWindowPlace(stored, screen), place) << name;
}

TEST(SettingsTest, AMaximizedWindowLeavesTheStoredPlace) {
    QWidget window;
    window.resize(320, 240);
    window.move(20, 30);
    window.show();
    StoreMainWindow(window);
    window.showMaximized();
    ASSERT_TRUE(orbelle::testing::WaitUntil([&] { return window.width() > 320; }));
    StoreMainWindow(window);

    const Settings settings;
    EXPECT_EQ(settings.value("MainLeft").toInt(), 20);
    EXPECT_EQ(settings.value("MainTop").toInt(), 30);
    EXPECT_EQ(settings.value("MainWidth").toInt(), 320);
    EXPECT_EQ(settings.value("MainHeight").toInt(), 240);
    EXPECT_EQ(settings.value("MainState").toInt(), 2);

    QWidget next;
    RestoreMainWindow(next);
    EXPECT_TRUE(next.windowState() & Qt::WindowMaximized);
}

TEST(FileDialogTest, FiltersTakeTheFormOfTheDialog) {
    EXPECT_EQ(
        NameFilters("All Supported Formats|*.volf;*.ico;*.png|ICO Files (*.ICO)|*.ico"),
        QStringList({"All Supported Formats (*.volf *.ico *.png)", "ICO Files (*.ICO) (*.ico)"}));
    EXPECT_EQ(NameFilters("a text without patterns"), QStringList());
}

}  // namespace
}  // namespace orbelle::app
