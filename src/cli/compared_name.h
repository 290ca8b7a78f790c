// When two names are one.
#pragma once

#include <filesystem>

namespace orbelle::cli {

// The same for names that differ only in what the system takes no notice of: case, on Windows.
std::filesystem::path ComparedName(const std::filesystem::path& path);

}  // namespace orbelle::cli
