#include <cstdlib>

#include "graphics/user_folders.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;

// The first that is set to an absolute path.
fs::path FromEnvironment(const wchar_t* first, const wchar_t* second) {
    for (const wchar_t* name : {first, second}) {
        const wchar_t* value = _wgetenv(name);
        if (value && fs::path(value).is_absolute())
            return value;
    }
    return {};
}

}  // namespace

fs::path StateHome() {
    return FromEnvironment(L"XDG_STATE_HOME", L"LOCALAPPDATA");
}

fs::path CacheHome() {
    return FromEnvironment(L"XDG_CACHE_HOME", L"LOCALAPPDATA");
}

}  // namespace orbelle::graphics
