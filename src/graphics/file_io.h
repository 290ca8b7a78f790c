// Whole files in and out.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

namespace orbelle::graphics {

// All of it at once, for files that are small; byte_source.h has what reads the others. Throws
// FileError when the file is missing, unreadable, no regular file or above kMaxFileBytes.
std::vector<std::uint8_t> ReadFile(const std::filesystem::path& path);

// Replaces the file in one step: the bytes go to a new file beside it that then takes its name, so
// a failure (FileError with the path and the system's reason) leaves the old file whole.
void WriteFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

}  // namespace orbelle::graphics
