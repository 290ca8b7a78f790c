#include "app/desktop_font.h"

namespace orbelle::app {

void UseDesktopFont() {}

}  // namespace orbelle::app
