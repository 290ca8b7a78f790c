#include "app/written_text.h"

#include <QStringList>

#include "app/file_names.h"
#include "widgets/words.h"

namespace orbelle::app {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kKilobyte = 1024;
constexpr std::uintmax_t kMegabyte = kKilobyte * kKilobyte;

QString NameOf(const fs::path& path) {
    return TextOf(path.filename());
}

// With the size and the folder, where these are known, behind what was done.
std::string Told(QStringList facts, const fs::path& path, std::optional<std::uintmax_t> bytes) {
    if (bytes)
        facts += SizeText(*bytes);
    if (path.has_parent_path())
        facts += Words::tr("in %1").arg(TextOf(path.parent_path()));
    return facts.join(", ").toStdString();
}

}  // namespace

QString SizeText(std::uintmax_t bytes) {
    if (bytes < kKilobyte)
        return bytes == 1 ? Words::tr("1 byte")
                          : Words::tr("%n bytes", nullptr, static_cast<int>(bytes));
    const std::uintmax_t kilobytes = (bytes + kKilobyte / 2) / kKilobyte;
    if (kilobytes < kKilobyte)
        return Words::tr("%1 KB").arg(kilobytes);
    const std::uintmax_t tenths =
        bytes / kMegabyte * 10 + (bytes % kMegabyte * 10 + kMegabyte / 2) / kMegabyte;
    return Words::tr("%1.%2 MB").arg(tenths / 10).arg(tenths % 10);
}

std::string SavedText(const fs::path& path, std::optional<std::uintmax_t> bytes) {
    return Told({Words::tr("Saved %1").arg(NameOf(path))}, path, bytes);
}

std::string ExportedText(const fs::path& path, std::optional<std::uintmax_t> bytes,
                         const QString& format, int width, int height) {
    return Told({Words::tr("Exported %1").arg(NameOf(path)),
                 Words::tr("%1 of %2 x %3 px").arg(format).arg(width).arg(height)},
                path, bytes);
}

std::string ExportedIconText(const fs::path& path, std::optional<std::uintmax_t> bytes,
                             const QString& format, const std::vector<int>& sides) {
    if (sides.empty())
        return Words::tr("Nothing was exported: the page is below 16 px, the least size of an icon")
            .toStdString();
    QStringList numbers;
    for (const int side : sides)
        numbers += QString::number(side);
    QString list = numbers.takeLast();
    if (!numbers.isEmpty())
        list = Words::tr("%1 and %2").arg(numbers.join(", "), list);
    return Told(
        {Words::tr("Exported %1").arg(NameOf(path)), Words::tr("%1 of %2 px").arg(format, list)},
        path, bytes);
}

}  // namespace orbelle::app
