// Names of files between the toolkit's texts, bytes, and paths.
#pragma once

#include <QString>
#include <filesystem>

namespace orbelle::app {

// A name that the toolkit gives, with the system's separators.
std::filesystem::path PathOf(const QString& name);

// What is no text in a name has stand-ins.
QString TextOf(const std::filesystem::path& path);

// Names as bytes: those of the system where it has such, so that they need not be UTF-8, and UTF-8
// elsewhere.
std::filesystem::path PathOfBytes(const QByteArray& name);
QByteArray BytesOf(const std::filesystem::path& path);

}  // namespace orbelle::app
