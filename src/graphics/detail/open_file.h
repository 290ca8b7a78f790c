// Files as the C library reads them.
#pragma once

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace orbelle::graphics::detail {

// For reading bytes. Others may write, rename and remove the file meanwhile. Null with the reason
// when it can't be opened.
std::FILE* OpenForReading(const std::filesystem::path& path, std::error_code& error);

}  // namespace orbelle::graphics::detail
