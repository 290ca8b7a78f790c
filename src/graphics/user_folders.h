// Folders that the system gives each user for what programs keep.
#pragma once

#include <filesystem>

namespace orbelle::graphics {

// For what must last: $XDG_STATE_HOME, else ~/.local/state; on Windows, when that variable has no
// absolute path, the folder for local application data. Empty when there is none. Not made here.
std::filesystem::path StateHome();

// For what may go at any time: $XDG_CACHE_HOME, else ~/.cache; on Windows as above.
std::filesystem::path CacheHome();

}  // namespace orbelle::graphics
