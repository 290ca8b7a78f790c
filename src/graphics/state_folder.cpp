#include "graphics/state_folder.h"

#include <system_error>

#include "graphics/errors.h"
#include "graphics/system_words.h"
#include "graphics/user_folders.h"

namespace orbelle::graphics {

namespace fs = std::filesystem;

fs::path StateFolder() {
    fs::path folder = StateHome();
    if (folder.empty())
        throw Error("there is no home folder");
    folder /= u8"orbelle";
    std::error_code error;
    const bool isNew = fs::create_directories(folder, error);
    if (error)
        throw FileError(folder, WordsFor(error));
    if (isNew)
        fs::permissions(folder, fs::perms::owner_all, error);
    return folder;
}

fs::path SaveCopiesFolder() {
    return StateFolder() / u8"saves";
}

}  // namespace orbelle::graphics
