#include "graphics/path_text.h"

namespace orbelle::graphics {

std::filesystem::path PathOfUtf8(std::string_view text) {
    return text;
}

std::string Utf8Of(const std::filesystem::path& path) {
    return path.native();
}

}  // namespace orbelle::graphics
