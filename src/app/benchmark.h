// How long a hand on the window waits: from a mouse event until what it changed is painted.
#pragma once

namespace orbelle::app {

// Opens the window on a page of ten layers of 512 x 512, drags a layer, draws and moves a slider by
// mouse events, and prints for each how many milliseconds a step took. Settings are neither read
// nor written. The program's exit status.
int RunBenchmark();

}  // namespace orbelle::app
