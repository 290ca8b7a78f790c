// Where a new thread begins.
#pragma once

#include <thread>

namespace orbelle::graphics {

// To another core than this thread's, where there is one. Some systems leave a new thread where it
// was made until a clock ticks, which comes some milliseconds later: short work is done by then.
void MoveToOtherCore(std::jthread& thread) noexcept;

}  // namespace orbelle::graphics
