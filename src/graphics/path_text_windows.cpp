#include <windows.h>

#include "graphics/path_text.h"

namespace orbelle::graphics {

std::filesystem::path PathOfUtf8(std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int units = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(units), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), units);
    return wide;
}

std::string Utf8Of(const std::filesystem::path& path) {
    const std::wstring& wide = path.native();
    const int length = static_cast<int>(wide.size());
    const int bytes =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, text.data(), bytes, nullptr, nullptr);
    return text;
}

}  // namespace orbelle::graphics
