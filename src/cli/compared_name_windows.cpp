#include <windows.h>

#include <string>

#include "cli/compared_name.h"

namespace orbelle::cli {

std::filesystem::path ComparedName(const std::filesystem::path& path) {
    std::wstring name = path.native();
    CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    return name;
}

}  // namespace orbelle::cli
