// The Export submenu.
#pragma once

#include <filesystem>
#include <vector>

#include "editing/editor.h"

namespace orbelle::editing {

// The sizes of the icon that ExportTo would write: those of the settings; else those of the icon
// file that the document was opened from, but for those that nothing is left for; else the table
// for the master's size.
std::vector<int> IconSizesOf(const EditorState& editor);

// Writes the page in force as a file of another kind, an icon from all pages, by
// Editor::ExportSettings; their GIF threshold counts for pages without a background. Throws Error
// when nothing could be written.
void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format);

}  // namespace orbelle::editing
