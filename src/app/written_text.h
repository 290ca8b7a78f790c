// What the status line says about a file that has been written.
#pragma once

#include <QString>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orbelle::app {

// "812 bytes", "12 KB", "1.4 MB": of 1024 each, rounded.
QString SizeText(std::uintmax_t bytes);

// "Saved glass.volf, 12 KB, in /home/ann". Without the size where there is none to know.
std::string SavedText(const std::filesystem::path& path, std::optional<std::uintmax_t> bytes);

// "Exported glass.png, PNG of 64 x 48 px, 3 KB, in /home/ann".
std::string ExportedText(const std::filesystem::path& path, std::optional<std::uintmax_t> bytes,
                         const QString& format, int width, int height);

// The same of an icon's pictures: "ICO of 32, 24 and 16 px". Without any there is no file.
std::string ExportedIconText(const std::filesystem::path& path, std::optional<std::uintmax_t> bytes,
                             const QString& format, const std::vector<int>& sides);

}  // namespace orbelle::app
