// The Export submenu.
#pragma once

#include <filesystem>

#include "editing/editor.h"

namespace orbelle::editing {

// Writes the page in force as a file of another kind, an icon from all pages, by
// Editor::ExportSettings; their GIF threshold counts for pages without a background. Throws Error
// when nothing could be written.
void ExportTo(Editor& editor, const std::filesystem::path& path, formats::ExportFormat format);

}  // namespace orbelle::editing
