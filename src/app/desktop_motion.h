// Whether the desktop lets things move.
#pragma once

namespace orbelle::app {

// What its settings say of animations, as far as they stand in files (GTK's and KDE's). The toolkit
// knows of other desktops itself.
bool DoesDesktopWantMotion();

}  // namespace orbelle::app
