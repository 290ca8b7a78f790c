#include "graphics/other_core.h"

#ifdef __linux__
#include <pthread.h>
#include <sched.h>
#endif

namespace orbelle::graphics {

void MoveToOtherCore([[maybe_unused]] std::jthread& thread) noexcept {
#ifdef __linux__
    cpu_set_t all;
    const int here = sched_getcpu();
    if (here < 0 || sched_getaffinity(0, sizeof all, &all) != 0)
        return;
    cpu_set_t others = all;
    CPU_CLR(static_cast<unsigned>(here), &others);
    if (CPU_COUNT(&others) == 0)
        return;
    // It stays there until the system has a reason to move it.
    pthread_setaffinity_np(thread.native_handle(), sizeof others, &others);
    pthread_setaffinity_np(thread.native_handle(), sizeof all, &all);
#endif
}

}  // namespace orbelle::graphics
