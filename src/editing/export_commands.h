// The Export submenu.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "editing/editor.h"
#include "formats/export_image.h"
#include "formats/icon_sets.h"

namespace orbelle::editing {

// The sizes of the icon that ExportTo would write: those of the settings; else those of the icon
// file that the document was opened from, but for those that nothing is left for; else the table
// for the master's size.
std::vector<int> IconSizesOf(const EditorState& editor);

// The sizes of all sets of files that were exported so far, rising.
std::vector<int> SetSizesOf(const EditorState& editor);

// Writes the page in force as a file of another kind, or the picture of the side that
// Editor::ExportSettings tell; an icon from all pages. Their GIF threshold counts for pages without
// a background. Throws Error when nothing could be written.
void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format);

// What ExportTo writes when it is no icon, without background.
graphics::Bitmap PictureToExport(const Editor& editor);

// What sets of files are made from.
formats::SetSource SetSourceOf(const Editor& editor);

// From now on a check looks at the sizes of that set, too.
void NoteSetExported(Editor& editor, formats::IconSet set);

// Whole sets of files below a folder, one set after the other, each noted as exported: one that
// fails leaves nothing of itself and throws Error.
void ExportSets(Editor& editor, const std::filesystem::path& folder,
                std::span<const formats::IconSet> sets);

// What files made from the document are called: its name, else that of the picture that it was made
// from, without extension, else "icon".
std::string FileNameOf(const document::Document& document);

}  // namespace orbelle::editing
