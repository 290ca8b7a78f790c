// The entry point of the window.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QProcess>
#include <QSessionManager>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <span>

#include "app/desktop_font.h"
#include "app/desktop_motion.h"
#include "app/ending_signals.h"
#include "app/file_names.h"
#include "app/hand_over_queue.h"
#include "app/language.h"
#include "app/looks.h"
#include "app/main_window.h"
#include "app/single_instance.h"
#include "app/starter_console.h"
#include "app/welcome_window.h"
#include "widgets/theme.h"
#include "widgets/words.h"

namespace {

using namespace orbelle::app;
using orbelle::Words;

// The text that a shell passes on: the path between quotation marks, or nothing.
QByteArray CommandLineOf(const QString& file, [[maybe_unused]] std::span<char*> arguments) {
    if (file.isEmpty())
        return {};
    std::filesystem::path path = PathOf(file);
#ifdef Q_OS_UNIX
    // As the system gave it: it need not be UTF-8.
    for (const char* argument : arguments)
        if (QString::fromLocal8Bit(argument) == file)
            path = argument;
#endif
    std::error_code noFolder;
    if (std::filesystem::path whole = std::filesystem::absolute(path, noFolder); !noFolder)
        path = std::move(whole);
    return '"' + BytesOf(path) + '"';
}

// Whether another copy of the program takes the file. Of two that start at once one comes too late
// to be asked by the other, and asks.
bool IsTakenByAnother(SingleInstance& instance, const QByteArray& commandLine) {
    const HandOverEnd end = SingleInstance::HandOver(commandLine);
    if (end == HandOverEnd::Nobody && !instance.Listen())
        return SingleInstance::HandOver(commandLine) == HandOverEnd::Taken;
    return end == HandOverEnd::Taken;
}

// What was handed over while the window was being closed gets a copy of its own.
void OpenInAnotherCopy(const QByteArrayList& commandLines) {
    for (const QByteArray& commandLine : commandLines) {
        if (!commandLine.isEmpty())
            QProcess::startDetached(QApplication::applicationFilePath(),
                                    {TextOf(PathOfBytes(commandLine.mid(1).chopped(1)))});
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("orbelle");
    QApplication::setApplicationVersion(ORBELLE_VERSION);
    QApplication::setDesktopFileName("orbelle");
    const Language language;
    orbelle::widgets::SetMotionWanted(DoesDesktopWantMotion());
    ApplyLooks(StoredLooks());
    UseDesktopFont();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/icons/orbelle-%1.png").arg(size), {size, size});
    QApplication::setWindowIcon(icon);

    QCommandLineParser parser;
    parser.setApplicationDescription(Words::tr("Varnel Orbelle, an icon editor."));
    const QCommandLineOption help({"h", "help"}, Words::tr("Print this help."));
    const QCommandLineOption version({"v", "version"}, Words::tr("Print the version."));
    parser.addOptions({help, version});
    parser.addPositionalArgument("FILE", Words::tr("The document or picture to open."), "[FILE]");
    const bool isUnderstood = parser.parse(QApplication::arguments());
    const QStringList files = parser.positionalArguments();
    if (!isUnderstood || files.size() > 1) {
        TellStarter(isUnderstood ? Words::tr("only one FILE can be opened") : parser.errorText());
        return 1;
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        AnswerStarter(parser.isSet(help) ? parser.helpText() : "orbelle " ORBELLE_VERSION "\n");
        return 0;
    }
    const QByteArray commandLine =
        CommandLineOf(files.value(0), {argv + 1, argv + std::max(argc, 1)});

    auto instance = std::make_unique<SingleInstance>();
    if (IsTakenByAnother(*instance, commandLine))
        return 0;
    HandOverQueue handOvers;
    QObject::connect(instance.get(), &SingleInstance::Received, &handOvers, &HandOverQueue::Add);

    WelcomeWindow welcome;
    welcome.RunStart();
    // The window is put together while the welcome stands.
    std::unique_ptr<MainWindow> window;
    QTimer::singleShot(0, [&] {
        window = std::make_unique<MainWindow>();
        window->RestoreSettings();
        window->StartRecovery();
        // Nobody who opens a file waits for the welcome.
        QObject::connect(&handOvers, &HandOverQueue::Added, &welcome, &WelcomeWindow::EndStart);
        QObject::connect(&handOvers, &HandOverQueue::Added, window.get(),
                         [&] { QApplication::alert(window.get()); });
        if (!handOvers.Waiting().isEmpty())
            welcome.EndStart();
    });
    EndingSignals ending;
    QObject::connect(&ending, &EndingSignals::Received, [&] {
        if (window)
            window->EndAtOnce();
        else
            QApplication::exit();
    });
    QObject::connect(&welcome, &WelcomeWindow::Finished, [&] {
        window->show();
        // Once the window has its size: the document is placed by it.
        QTimer::singleShot(0, window.get(), [&] {
            window->OfferRecovery();
            if (!commandLine.isEmpty())
                window->ShellOpen(commandLine);
            else if (handOvers.Waiting().isEmpty())
                window->StartWelcome();
            handOvers.Start([&] { return window->IsFree(); },
                            [&](const QByteArray& text) { window->TakeHandOver(text); });
        });
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest,
                     [&](QSessionManager& session) {
                         if (!window)
                             return;
                         if (window->MayEndSession([&] { return session.allowsInteraction(); }))
                             session.release();
                         else
                             session.cancel();
                     });
    bool isClosed = false;  // by the user, not ended by the system
    QObject::connect(&application, &QGuiApplication::lastWindowClosed, [&] { isClosed = true; });
    const int status = QApplication::exec();
    instance.reset();
    if (isClosed)
        OpenInAnotherCopy(handOvers.Waiting());
    return status;
}
