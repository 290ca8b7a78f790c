// A file that the user has named, opened or imported.
#pragma once

#include <filesystem>
#include <string>

#include "app/window_actions.h"

namespace orbelle::app {

enum class TakeEnd { Done, Failed, Cancelled };

struct TakeResult {
    TakeEnd End = TakeEnd::Done;
    std::string Text;  // what is left to tell; empty: nothing
};

// Of an icon file the user chooses the image: to open all sizes as well, to import several, which
// are one step. Whether the present document may be given up is to be known already.
TakeResult TakeToOpen(const WindowContext& context, const std::filesystem::path& path);
TakeResult TakeToImport(const WindowContext& context, const std::filesystem::path& path);

}  // namespace orbelle::app
