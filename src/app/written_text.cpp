#include "app/written_text.h"

namespace orbelle::app {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kKilobyte = 1024;
constexpr std::uintmax_t kMegabyte = kKilobyte * kKilobyte;

std::string Told(const char* done, const fs::path& path, const std::string& contents,
                 std::optional<std::uintmax_t> bytes) {
    std::string text = std::string(done) + ' ' + path.filename().string() + contents;
    if (bytes)
        text += ", " + SizeText(*bytes);
    if (path.has_parent_path())
        text += ", in " + path.parent_path().string();
    return text;
}

}  // namespace

std::string SizeText(std::uintmax_t bytes) {
    if (bytes < kKilobyte)
        return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
    const std::uintmax_t kilobytes = (bytes + kKilobyte / 2) / kKilobyte;
    if (kilobytes < kKilobyte)
        return std::to_string(kilobytes) + " KB";
    // No format of the C library: its decimal point is the user's.
    const std::uintmax_t tenths =
        bytes / kMegabyte * 10 + (bytes % kMegabyte * 10 + kMegabyte / 2) / kMegabyte;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " MB";
}

std::string SavedText(const fs::path& path, std::optional<std::uintmax_t> bytes) {
    return Told("Saved", path, "", bytes);
}

std::string ExportedText(const fs::path& path, std::optional<std::uintmax_t> bytes,
                         std::string_view format, int width, int height) {
    return Told("Exported", path,
                ", " + std::string(format) + " of " + std::to_string(width) + " x " +
                    std::to_string(height) + " px",
                bytes);
}

std::string ExportedIconText(const fs::path& path, std::optional<std::uintmax_t> bytes,
                             std::string_view format, const std::vector<int>& sides) {
    if (sides.empty())
        return "Nothing was exported: the page is below 16 px, the least size of an icon";
    std::string list;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        if (i > 0)
            list += i + 1 == sides.size() ? " and " : ", ";
        list += std::to_string(sides[i]);
    }
    return Told("Exported", path, ", " + std::string(format) + " of " + list + " px", bytes);
}

}  // namespace orbelle::app
