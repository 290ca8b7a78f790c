// Commands that ask the user first: for a size, a file, a colour. Failures are told.
#pragma once

#include <filesystem>
#include <string_view>

#include "app/window_actions.h"

namespace orbelle::app {

// After the save prompt.
void AskNew(const WindowContext& context);
void AskOpen(const WindowContext& context);
// A file of the list of recent ones; one that is not there any more leaves the list.
void OpenRecent(const WindowContext& context, const std::filesystem::path& path);
// What a command line or another copy of the program hands over: the first and last characters,
// meant to be quotation marks, are cut unseen (docs/oddities.md, "Quotation marks").
void OpenHandedOver(const WindowContext& context, std::string_view command);

void AskImport(const WindowContext& context);

// A click on the page's colour well: the chosen colour, opaque.
void AskPageBackground(const WindowContext& context);
// A double click on the foreground (0) or background (1) well, which is in use then either way. An
// alpha that was chosen in the dialog is the well's from then on.
void AskWellColor(const WindowContext& context, int well);

// What the recipes make of the master at that size, side by side; the one chosen is the size's
// artwork then, in place of what there was.
void AskSuggest(const WindowContext& context, int size);

}  // namespace orbelle::app
