#include <windows.h>

#include "app/desktop_motion.h"

namespace orbelle::app {

bool DoesDesktopWantMotion() {
    BOOL isWanted = TRUE;
    SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &isWanted, 0);
    return isWanted;
}

}  // namespace orbelle::app
