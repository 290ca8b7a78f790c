// The font of the desktop.
#pragma once

namespace orbelle::app {

// Makes it the program's, where the toolkit does not do so by itself. Once, after the
// first looks: with a style the toolkit takes its own again.
void UseDesktopFont();

}  // namespace orbelle::app
