// Where the program keeps what it must not lose and what the user does not look after.
#pragma once

#include <filesystem>

namespace orbelle::graphics {

// $XDG_STATE_HOME/orbelle, or ~/.local/state/orbelle when that is not an absolute path. It is made
// when it is missing, for the user alone. Throws FileError.
std::filesystem::path StateFolder();

}  // namespace orbelle::graphics
