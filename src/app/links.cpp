#include "app/links.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <algorithm>
#include <iterator>

namespace orbelle::app {

void OpenLink(const WindowContext& context, const QString& address) {
    const std::string text = address.toStdString();
    if (QDesktopServices::openUrl(QUrl(address)))
        context.User.ShowStatus("Opened in the browser: " + text);
    else
        context.User.ShowAddress("There is no browser that could show this page:\n" + text, text);
}

void OpenFolder(const WindowContext& context, const std::filesystem::path& folder) {
    const std::string text = folder.string();
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(text))))
        context.User.ShowStatus("Opened the folder: " + text);
    else
        context.User.ShowAddress("There is no file manager that could show the folder:\n" + text,
                                 text);
}

void OpenSamples(const WindowContext& context) {
    const QDir program(QCoreApplication::applicationDirPath());
    const auto clean = [&](const char* folder) {
        return QDir::cleanPath(program.absoluteFilePath(folder));
    };
    constexpr const char* kFolders[] = {"Samples", "../share/orbelle/samples", "../../../samples"};
    const auto* found =
        std::ranges::find_if(kFolders, [&](const char* folder) { return program.exists(folder); });
    if (found == std::end(kFolders)) {
        const std::string expected = clean(kFolders[0]).toStdString();
        context.User.ShowAddress("The folder of samples is missing. It belongs here:\n" + expected,
                                 expected);
        return;
    }
    const QString folder = clean(*found);
    const std::string text = folder.toStdString();
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        context.User.ShowStatus("Opened the folder of samples: " + text);
    else
        context.User.ShowAddress(
            "There is no file manager that could show the folder of samples:\n" + text, text);
}

}  // namespace orbelle::app
