// Where the program keeps what it must not lose and what the user does not look after.
#pragma once

#include <filesystem>

namespace orbelle::graphics {

// The folder "orbelle" in StateHome() (user_folders.h). It is made when it is missing, for the user
// alone. Throws FileError, and Error when there is no such place.
std::filesystem::path StateFolder();

// In it: whole copies of what is being written into files that can't be replaced, and what was when
// such a save was cut short.
std::filesystem::path SaveCopiesFolder();

}  // namespace orbelle::graphics
