#include "app/recent_files.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <algorithm>

#include "app/file_names.h"
#include "app/settings.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;

constexpr char kKey[] = "RecentFiles";

// As bytes in ASCII: a name need not be a text.
QString Stored(const fs::path& path) {
    return QString::fromLatin1(BytesOf(path).toPercentEncoding("/"));
}

fs::path PathIn(const QString& stored) {
    const QByteArray bytes = QByteArray::fromPercentEncoding(stored.toLatin1());
    return bytes.contains('\0') ? fs::path() : PathOfBytes(bytes);
}

}  // namespace

void RecentFiles::Restore() {
    isStored_ = true;
    Read();
    emit Changed();
}

// What the list shows is what is stored: another window may have added to it.
void RecentFiles::Read() {
    if (!isStored_)
        return;
    paths_.clear();
    for (const QString& stored : Settings().value(kKey).toStringList()) {
        const fs::path path = PathIn(stored);
        if (path.is_absolute() && paths_.size() < kMostRecentFiles &&
            std::ranges::find(paths_, path) == paths_.end())
            paths_.push_back(path);
    }
}

void RecentFiles::Write() {
    if (isStored_) {
        QStringList stored;
        for (const fs::path& path : paths_)
            stored += Stored(path);
        Settings().setValue(kKey, stored);
    }
    emit Changed();
}

void RecentFiles::Note(const fs::path& path) {
    std::error_code noFolder;
    const fs::path whole = fs::absolute(path, noFolder);
    if (noFolder)
        return;
    Read();
    std::erase(paths_, whole);
    paths_.insert(paths_.begin(), whole);
    paths_.resize(std::min(paths_.size(), kMostRecentFiles));
    Write();
}

void RecentFiles::Forget(const fs::path& path) {
    Read();
    std::erase(paths_, path);
    Write();
}

void RecentFiles::Clear() {
    paths_.clear();
    Write();
}

QString ShownPath(const fs::path& path) {
    QString shown = TextOf(path);
    for (QChar& character : shown)
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    return shown;
}

}  // namespace orbelle::app
