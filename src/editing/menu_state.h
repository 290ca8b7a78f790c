// Which menu entries are enabled, worked out each time a menu opens.
#pragma once

#include "editing/editor.h"

namespace orbelle::editing {

void OpenFileMenu(Editor& editor);
// Asks the host for the clipboard.
void OpenEditMenu(Editor& editor);
void OpenStyleMenu(Editor& editor);

}  // namespace orbelle::editing
