#include <cerrno>

#include "graphics/detail/open_file.h"

namespace orbelle::graphics::detail {

std::FILE* OpenForReading(const std::filesystem::path& path, std::error_code& error) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file)
        error.assign(errno, std::generic_category());
    return file;
}

}  // namespace orbelle::graphics::detail
