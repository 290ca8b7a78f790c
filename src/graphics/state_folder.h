// Where the program keeps what it must not lose and what the user does not look after.
#pragma once

#include <filesystem>

namespace orbelle::graphics {

// $XDG_STATE_HOME/orbelle, or ~/.local/state/orbelle when that is not an absolute path. It is made
// when it is missing, for the user alone. Throws FileError.
std::filesystem::path StateFolder();

// In it: whole copies of what is being written into files that can't be replaced, and what was when
// such a save was cut short.
std::filesystem::path SaveCopiesFolder();

}  // namespace orbelle::graphics
