// The entry point of the window.
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QTimer>
#include <memory>

#include "app/chrome.h"
#include "app/ending_signals.h"
#include "app/main_window.h"
#include "app/single_instance.h"
#include "app/welcome_window.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("orbelle");
    QApplication::setApplicationVersion(ORBELLE_VERSION);
    QApplication::setDesktopFileName("orbelle");
    orbelle::app::ApplyChrome();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/icons/orbelle-%1.png").arg(size), {size, size});
    QApplication::setWindowIcon(icon);

    QCommandLineParser parser;
    parser.setApplicationDescription("Varnel Orbelle, an icon editor.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("FILE", "The document or picture to open.", "[FILE]");
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        qCritical("orbelle: only one FILE can be opened");
        return 1;
    }
    const QString file = files.value(0);

    // The text that a shell passes on: the path between quotation marks, or nothing.
    const QString commandLine =
        file.isEmpty() ? QString() : '"' + QFileInfo(file).absoluteFilePath() + '"';
    if (orbelle::app::SingleInstance::HandOver(commandLine))
        return 0;

    orbelle::app::SingleInstance instance;
    orbelle::app::WelcomeWindow welcome;
    welcome.RunStart();
    // The window is put together while the welcome stands.
    std::unique_ptr<orbelle::app::MainWindow> window;
    QTimer::singleShot(0, [&] {
        window = std::make_unique<orbelle::app::MainWindow>();
        window->RestoreSettings();
        window->StartRecovery();
        QObject::connect(&instance, &orbelle::app::SingleInstance::Received, window.get(),
                         &orbelle::app::MainWindow::TakeHandOver);
    });
    orbelle::app::EndingSignals ending;
    QObject::connect(&ending, &orbelle::app::EndingSignals::Received, [&] {
        if (window)
            window->EndAtOnce();
        else
            QApplication::exit();
    });
    QObject::connect(&welcome, &orbelle::app::WelcomeWindow::Finished, [&] {
        window->show();
        // Once the window has its size: the document is placed by it.
        QTimer::singleShot(0, window.get(), [&] {
            window->OfferRecovery();
            if (!commandLine.isEmpty())
                window->ShellOpen(commandLine);
            else if (!window->Editor().DocumentExists)
                window->StartWelcome();
        });
    });
    return QApplication::exec();
}
