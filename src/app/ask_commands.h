// Commands that ask the user first: for a size, a file, a colour, and whether a changed document
// may be given up. Failures are told.
#pragma once

#include <filesystem>
#include <string_view>

#include "app/export_formats.h"
#include "app/window_actions.h"

namespace orbelle::app {

// After the save prompt.
void AskNew(const WindowContext& context);
void AskOpen(const WindowContext& context);
// What a command line or another copy of the program hands over: the first and last characters,
// meant to be quotation marks, are cut unseen (docs/oddities.md, "Quotation marks").
void OpenHandedOver(const WindowContext& context, std::string_view command);

void AskImport(const WindowContext& context);
// Import of a file that is known: one dropped on the window. A document takes the place of the
// present one, after the save prompt.
void ImportKnownFile(const WindowContext& context, const std::filesystem::path& path);

// False: not saved, because the user cancelled or writing failed. Save asks for a path when the
// document has none, Save As always.
bool AskSave(const WindowContext& context);
bool AskSaveAs(const WindowContext& context);

void AskExport(const WindowContext& context, const ExportEntry& entry);

// Before a changed document is given up: by New, Open, a hand-over, or closing the window. False:
// the user wants to go back, or wanted to save and that did not happen.
bool MayGiveUpDocument(const WindowContext& context);

// A click on the page's colour well: the chosen colour, opaque.
void AskPageBackground(const WindowContext& context);
// A double click on the foreground (0) or background (1) well, which is in use then either way.
void AskWellColor(const WindowContext& context, int well);

}  // namespace orbelle::app
