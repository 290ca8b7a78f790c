// What the window's title says.
#pragma once

#include <filesystem>
#include <string>

#include "editing/editor.h"

namespace orbelle::editing {

// The document's file, if it has one yet, and the size whose page is in force, unless that is the
// master.
std::string TitleOf(const std::filesystem::path& path, int editedSize);

// The title follows the document.
void ShowTitle(Editor& editor);

}  // namespace orbelle::editing
