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

// Import of a file dropped on the window.
void ImportFile(Editor& editor, const std::filesystem::path& path);

// False: not saved, because the user cancelled or writing failed (then the document stays marked as
// changed). Asks for a path when the document has none.
bool Save(Editor& editor);
// Always asks. Cancelling deliberately leaves the document without a path.
bool SaveAs(Editor& editor);

// Opens what a command line or another copy of the program hands over, after the save prompt: the
// first and last characters, meant to be quotation marks, are cut unseen.
void ShellOpenFile(Editor& editor, std::string_view command);

// The window is to be closed: the save prompt. False: it stays open.
bool QueryUnload(Editor& editor);

// The state before anything is done with a page of this size; with an empty layer if said.
void ResetDocument(Editor& editor, int pageWidth, int pageHeight, bool addFirstLayer);

inline constexpr char kPageSizeMessage[] = "Please input a integer from 1 to 512.";

}  // namespace orbelle::editing
