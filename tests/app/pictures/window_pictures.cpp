// window_pictures FOLDER SAMPLES light|dark [LOCALE]: a picture of everything that the program
// shows, at the scale that QT_SCALE_FACTOR says, as NAME.png in the folder, in English or the
// language of the locale ("de"). Settings are those of HOME.
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>
#include <iostream>

#include "app/language.h"
#include "app/looks.h"
#include "widgets/theme.h"
#include "window_states.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setApplicationVersion(ORBELLE_VERSION);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4 && arguments.size() != 5) {
        std::cerr << "usage: window_pictures FOLDER SAMPLES light|dark [LOCALE]\n";
        return 2;
    }
    const orbelle::app::Language language{QLocale(arguments.value(4, "en"))};
    orbelle::widgets::SetMotionWanted(false);
    using orbelle::app::Looks;
    orbelle::app::ApplyLooks(arguments[3] == "dark" ? Looks::Dark : Looks::Light);
    const QDir folder(arguments[1]);
    bool isWritten = true;
    orbelle::app::ForEachWindowState(arguments[2], [&](const QString& name, QWidget& shown) {
        isWritten &= shown.grab().save(folder.filePath(name + ".png"), "PNG");
    });
    return isWritten ? 0 : 1;
}
