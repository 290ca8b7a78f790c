#include <QSettings>

#include "app/desktop_shade.h"

namespace orbelle::app {

// The toolkit's colours are light there, whatever the user wants.
bool IsDesktopDark() {
    const QSettings wanted(
        R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
        QSettings::NativeFormat);
    return wanted.value("AppsUseLightTheme", 1).toInt() == 0;
}

}  // namespace orbelle::app
