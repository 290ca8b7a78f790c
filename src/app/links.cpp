#include "app/links.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <algorithm>
#include <iterator>

#include "app/file_names.h"
#include "graphics/path_text.h"
#include "widgets/words.h"

namespace orbelle::app {

void OpenLink(const WindowContext& context, const QString& address) {
    const std::string text = address.toStdString();
    if (QDesktopServices::openUrl(QUrl(address)))
        context.User.ShowStatus(Words::tr("Opened in the browser: %1").arg(address).toStdString());
    else
        context.User.ShowAddress(
            Words::tr("There is no browser that could show this page:").toStdString() + '\n' + text,
            text);
}

void OpenFolder(const WindowContext& context, const std::filesystem::path& folder) {
    const std::string text = graphics::Utf8Of(folder);
    const QString shown = TextOf(folder);
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(shown)))
        context.User.ShowStatus(Words::tr("Opened the folder: %1").arg(shown).toStdString());
    else
        context.User.ShowAddress(
            Words::tr("There is no file manager that could show the folder:").toStdString() + '\n' +
                text,
            text);
}

void OpenSamples(const WindowContext& context) {
    const QDir program(QCoreApplication::applicationDirPath());
    const auto clean = [&](const char* folder) {
        return QDir::toNativeSeparators(QDir::cleanPath(program.absoluteFilePath(folder)));
    };
    constexpr const char* kFolders[] = {"Samples", "../share/orbelle/samples", "../../../samples"};
    const auto* found =
        std::ranges::find_if(kFolders, [&](const char* folder) { return program.exists(folder); });
    if (found == std::end(kFolders)) {
        const std::string expected = clean(kFolders[0]).toStdString();
        context.User.ShowAddress(
            Words::tr("The folder of samples is missing. It belongs here:").toStdString() + '\n' +
                expected,
            expected);
        return;
    }
    const QString folder = clean(*found);
    const std::string text = folder.toStdString();
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        context.User.ShowStatus(
            Words::tr("Opened the folder of samples: %1").arg(folder).toStdString());
    else
        context.User.ShowAddress(
            Words::tr("There is no file manager that could show the folder of samples:")
                    .toStdString() +
                '\n' + text,
            text);
}

}  // namespace orbelle::app
