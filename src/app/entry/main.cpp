// The entry point of the window.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTimer>

#include "app/mform.h"
#include "app/screenshot.h"
#include "app/settings.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("orbelle");
    QApplication::setApplicationVersion(ORBELLE_VERSION);
    QApplication::setDesktopFileName("orbelle");
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/icons/orbelle-%1.png").arg(size), {size, size});
    QApplication::setWindowIcon(icon);

    QCommandLineParser parser;
    parser.setApplicationDescription("Varnel Orbelle, an icon editor.");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshot(
        "screenshot", "Write what the window shows to PICTURE, a PNG, and exit.", "PICTURE");
    parser.addOption(screenshot);
    parser.addPositionalArgument("FILE", "The document or picture to open.", "[FILE]");
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        qCritical("orbelle: only one FILE can be opened");
        return 1;
    }
    const QString file = files.value(0);
    if (parser.isSet(screenshot))
        return orbelle::app::TakeScreenshot(parser.value(screenshot), file);

    orbelle::app::mForm form;
    orbelle::app::RestoreMainWindow(form);
    form.show();
    // Once the window has its size: the document is placed by it.
    if (!files.isEmpty())
        QTimer::singleShot(0, &form, [&] { form.OpenPath(file); });
    return QApplication::exec();
}
