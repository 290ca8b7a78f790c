#include "app/links.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

namespace orbelle::app {

void OpenLink(const QString& address) {
    QDesktopServices::openUrl(QUrl(address));
}

bool OpenSamples() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : {"Samples", "../share/orbelle/samples", "../../../samples"}) {
        if (program.exists(folder))
            return QDesktopServices::openUrl(
                QUrl::fromLocalFile(QDir::cleanPath(program.absoluteFilePath(folder))));
    }
    return false;
}

}  // namespace orbelle::app
