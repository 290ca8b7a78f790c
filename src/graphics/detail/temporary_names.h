// Names for files that will take that of another one, and what killed programs left of them.
#pragma once

#include <filesystem>

namespace orbelle::graphics::detail {

// FOLDER/.orbelle-PID-RANDOM.tmp, which nobody else has.
std::filesystem::path TemporaryNameIn(const std::filesystem::path& folder);

// Removes the files of such a name whose process is gone. A folder is looked through at most once
// a second. It does what it can and throws nothing.
void RemoveStaleFiles(const std::filesystem::path& folder) noexcept;

}  // namespace orbelle::graphics::detail
