#include "graphics/state_folder.h"

#include <cstdlib>
#include <system_error>

#include "graphics/errors.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;

// Empty when it is not set.
fs::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

fs::path StateHome() {
    fs::path told = FromEnvironment("XDG_STATE_HOME");
    if (told.is_absolute())
        return told;
    const fs::path home = FromEnvironment("HOME");
    if (!home.is_absolute())
        throw Error("there is no home folder");
    return home / ".local" / "state";
}

}  // namespace

fs::path StateFolder() {
    fs::path folder = StateHome() / "orbelle";
    std::error_code error;
    const bool isNew = fs::create_directories(folder, error);
    if (error)
        throw FileError(folder, error.message());
    if (isNew)
        fs::permissions(folder, fs::perms::owner_all, error);
    return folder;
}

fs::path SaveCopiesFolder() {
    return StateFolder() / "saves";
}

}  // namespace orbelle::graphics
