// Whether the desktop is dark.
#pragma once

namespace orbelle::app {

// To be asked before any looks of ours hide it.
bool IsDesktopDark();

}  // namespace orbelle::app
