#include "app/desktop_motion.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace orbelle::app {
namespace {

// Empty: nothing is said.
QString Said(const char* file, const char* key) {
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' + file;
    return QFile::exists(path) ? QSettings(path, QSettings::IniFormat).value(key).toString()
                               : QString();
}

}  // namespace

bool DoesDesktopWantMotion() {
    for (const char* file : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"}) {
        const QString said = Said(file, "Settings/gtk-enable-animations").toLower();
        if (said == "0" || said == "false")
            return false;
    }
    bool isNumber = false;
    const double factor = Said("kdeglobals", "KDE/AnimationDurationFactor").toDouble(&isNumber);
    return !isNumber || factor > 0;
}

}  // namespace orbelle::app
