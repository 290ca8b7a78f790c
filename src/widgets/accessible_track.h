// The flat slider to assistive tools.
#pragma once

namespace orbelle::widgets {

// For all TrackSliders. A value that a tool sets is one drag: pressed, changed, released. Calling it
// again is harmless.
void InstallAccessibleTrack();

}  // namespace orbelle::widgets
