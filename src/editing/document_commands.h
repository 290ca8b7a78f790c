// The File menu: New, Open, Import, Save, Save As.
#pragma once

#include <filesystem>
#include <string_view>

#include "editing/editor.h"

namespace orbelle::editing {

// After the save prompt: a page of the size that the host asks the user for, with one empty layer.
// A size outside 1 to kMaxPageSide shows kPageSizeMessage and changes nothing.
void New(Editor& editor);

// After the save prompt and the file dialog: a document, or a picture that becomes the page.
void Open(Editor& editor);

// A picture as a new layer above the selected one; with no document yet it makes the page.
void Import(Editor& editor);

// Import of a file that is known: one dropped on the window. A document takes the place of the
// present one, after the save prompt.
void ImportFile(Editor& editor, const std::filesystem::path& path);

// False: not saved, because the user cancelled or writing failed (then the document stays marked as
// changed). Asks for a path when the document has none.
bool Save(Editor& editor);
// Always asks. Cancelling deliberately leaves the document without a path.
bool SaveAs(Editor& editor);

// Opens what a command line or another copy of the program hands over, after the save prompt: the
// first and last characters, meant to be quotation marks, are cut unseen.
void ShellOpenFile(Editor& editor, std::string_view command);

// Before a changed document is given up: by New, Open, a hand-over, or closing the window. False:
// the user wants to go back. After "Yes" all goes on even if saving was cancelled or failed.
bool RunSavePrompt(Editor& editor);

// The state before anything is done with a page of this size; with an empty layer if said.
void ResetDocument(Editor& editor, int pageWidth, int pageHeight, bool addFirstLayer);

inline constexpr char kPageSizeMessage[] = "Please input a integer from 1 to 512.";

}  // namespace orbelle::editing
