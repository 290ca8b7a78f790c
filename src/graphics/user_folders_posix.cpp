#include <cstdlib>

#include "graphics/user_folders.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;

// Empty when it is not set. A relative folder counts as none.
fs::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    const fs::path folder = value ? value : "";
    return folder.is_absolute() ? folder : fs::path();
}

fs::path Home(const char* variable, const fs::path& below) {
    fs::path told = FromEnvironment(variable);
    if (!told.empty())
        return told;
    const fs::path home = FromEnvironment("HOME");
    return home.empty() ? home : home / below;
}

}  // namespace

fs::path StateHome() {
    return Home("XDG_STATE_HOME", ".local/state");
}

fs::path CacheHome() {
    return Home("XDG_CACHE_HOME", ".cache");
}

}  // namespace orbelle::graphics
