#include "cli/compared_name.h"

namespace orbelle::cli {

std::filesystem::path ComparedName(const std::filesystem::path& path) {
    return path;
}

}  // namespace orbelle::cli
