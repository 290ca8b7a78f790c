// The looks of the whole program: one light chrome whatever the desktop's theme.
#pragma once

namespace orbelle::app {

// Style and colours of all windows; once, after the application object was made.
void ApplyChrome();

}  // namespace orbelle::app
