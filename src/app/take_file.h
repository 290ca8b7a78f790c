// A file that the user has named, opened or imported.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/window_actions.h"

namespace orbelle::app {

enum class TakeEnd { Done, Failed, Cancelled };

struct TakeResult {
    TakeEnd End = TakeEnd::Done;
    std::string Text;  // what is left to tell; empty: nothing
};

// What the user has said about the files of one run, for those that follow.
struct TakeAnswers {
    std::optional<int> SvgSide;
    std::optional<bool> FitsPage;
};

// The user is asked for the size of a drawing, and whether an imported picture larger than the page
// is to fit it, where `answers` does not tell. Of an icon file the user chooses the image: to open
// all sizes as well, to import several, which are one step. Whether the present document may be
// given up is to be known already.
TakeResult TakeToOpen(const WindowContext& context, const std::filesystem::path& path,
                      TakeAnswers& answers);
TakeResult TakeToImport(const WindowContext& context, const std::filesystem::path& path,
                        TakeAnswers& answers);

// Layers of pictures that have been read already, from a file if they have a source.
TakeResult TakeToImport(const WindowContext& context, const std::vector<graphics::Bitmap>& pictures,
                        const std::filesystem::path& source, TakeAnswers& answers);

// What lies on the clipboard as a layer. Whether another program's picture is to fit the page is
// asked as of one that is imported.
TakeResult TakePasted(const WindowContext& context);

}  // namespace orbelle::app
