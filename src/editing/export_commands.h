// The Export submenu.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Asks for a file, with that filter in the dialog, and writes the composed page to it; the document
// is not changed. A failure is told in the status line.
void Export(Editor& editor, formats::ExportFormat format, const std::string& filter);

}  // namespace orbelle::editing
