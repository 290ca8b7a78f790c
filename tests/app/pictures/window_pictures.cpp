// window_pictures FOLDER SAMPLES light|dark: a picture of everything that the program shows, at the
// scale that QT_SCALE_FACTOR says, as NAME.png in the folder. Settings are those of HOME.
#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>
#include <iostream>

#include "app/looks.h"
#include "window_states.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        std::cerr << "usage: window_pictures FOLDER SAMPLES light|dark\n";
        return 2;
    }
    using orbelle::app::Looks;
    orbelle::app::ApplyLooks(arguments[3] == "dark" ? Looks::Dark : Looks::Light);
    const QDir folder(arguments[1]);
    bool isWritten = true;
    orbelle::app::ForEachWindowState(arguments[2], [&](const QString& name, QWidget& shown) {
        isWritten &= shown.grab().save(folder.filePath(name + ".png"), "PNG");
    });
    return isWritten ? 0 : 1;
}
