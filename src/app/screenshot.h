// The window as a picture file, without a user.
#pragma once

#include <QString>

namespace orbelle::app {

// Shows the window at its default size, opens `file` (empty: none), waits until the page stands
// still, and writes what the window shows, at its device pixel ratio, to `picture` as PNG. Settings
// are neither read nor written. The program's exit status: 0, or 1 after a line on standard error.
int TakeScreenshot(const QString& picture, const QString& file);

}  // namespace orbelle::app
