#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "cli/entry/process.h"
#include "graphics/unfinished_files.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace orbelle::cli {
namespace {

// Pictures come and go. What they leave is kept: the system would fill the next one's memory with
// zeros, a page at a time. What large ones leave is given back, for it would add to the most that a
// file may take.
void KeepMemory() {
#ifdef __GLIBC__
    constexpr int kLargestFromHeap = 8 << 20;
    constexpr int kMostKept = 64 << 20;
    mallopt(M_MMAP_THRESHOLD, kLargestFromHeap);
    mallopt(M_TRIM_THRESHOLD, kMostKept);
#endif
}

}  // namespace

void PrepareProcess() {
    KeepMemory();
    // A file that is opened takes the lowest number that is free.
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(standard, F_GETFD) < 0)
            open("/dev/null", standard == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    graphics::EndCleanlyOnSignals();
}

std::vector<std::string> ArgumentsOf(int argc, char** argv) {
    return {argv + std::min(argc, 1), argv + argc};
}

bool IsTerminalForErrors() {
    return isatty(STDERR_FILENO) != 0;
}

}  // namespace orbelle::cli
