// File/Export/Icon Set.
#pragma once

#include "app/window_actions.h"

namespace orbelle::app {

// The user chooses platforms and a folder, is asked once before files are overwritten, and told
// what was written, or which sets were not and why.
void AskExportSets(const WindowContext& context);

}  // namespace orbelle::app
