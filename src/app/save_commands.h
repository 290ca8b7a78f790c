// What writes files: Save, Save As, Export, and the save prompt. The user is asked where to, and
// before another file is overwritten. Failures are told; what was written is told in the status
// line.
#pragma once

#include <filesystem>
#include <string_view>

#include "app/export_formats.h"
#include "app/window_actions.h"

namespace orbelle::app {

// False: not saved, because the user cancelled or writing failed; then nothing has changed. Save
// asks for a path when the document has none, Save As always; Save asks before it overwrites what
// another program has put there. A name that the user gives is completed by the extension.
bool AskSave(const WindowContext& context);
bool AskSaveAs(const WindowContext& context);

void AskExport(const WindowContext& context, const ExportEntry& entry);

// Before a changed document is given up: by New, Open, a hand-over, or closing the window. False:
// the user wants to go back, or wanted to save and that did not happen.
bool MayGiveUpDocument(const WindowContext& context);

// The name that a file dialog begins with: the document's, else that of the picture that it was
// made from, each in its folder, else "icon"; with the first extension of a filter.
std::filesystem::path ProposedName(const document::Document& document, std::string_view filter);

// The path with the first extension of a filter, "text|*.a;*.b", unless it ends in one of them.
std::filesystem::path CompletedName(const std::filesystem::path& path, std::string_view filter);

}  // namespace orbelle::app
