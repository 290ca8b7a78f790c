// The window's tests run without a display and leave the user's settings alone.
#include <gtest/gtest.h>

#include <QApplication>

#include "support/temporary_folder.h"
#include "widgets/theme.h"

int main(int argc, char** argv) {
    const orbelle::testing::TemporaryFolder home;
    for (const char* name :
         {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.Path().c_str());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANGUAGE", "en");
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    // Nobody waits for it but the tests of it.
    orbelle::widgets::SetMotionWanted(false);
    return RUN_ALL_TESTS();
}
