// Whether the desktop lets things move.
#pragma once

namespace orbelle::app {

// What its settings say of animations: those of Windows, or files of GTK and KDE. The toolkit knows
// of other desktops itself.
bool DoesDesktopWantMotion();

}  // namespace orbelle::app
