#include "app/file_names.h"

#include <QDir>

#include "graphics/path_text.h"

namespace orbelle::app {

std::filesystem::path PathOf(const QString& name) {
    return PathOfBytes(QDir::toNativeSeparators(name).toUtf8());
}

QString TextOf(const std::filesystem::path& path) {
    return QString::fromUtf8(BytesOf(path));
}

std::filesystem::path PathOfBytes(const QByteArray& name) {
    return graphics::PathOfUtf8({name.constData(), static_cast<std::size_t>(name.size())});
}

QByteArray BytesOf(const std::filesystem::path& path) {
    return QByteArray::fromStdString(graphics::Utf8Of(path));
}

}  // namespace orbelle::app
