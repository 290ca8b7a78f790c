// The Export submenu.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

// Asks for a file and writes the composed page to it; the document is not changed. A failure is
// told in the status line.
void Export(Editor& editor, const formats::ExportFormat& format);

}  // namespace orbelle::editing
