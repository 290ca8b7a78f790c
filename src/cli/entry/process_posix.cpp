#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "cli/entry/process.h"
#include "graphics/unfinished_files.h"

namespace orbelle::cli {

void PrepareProcess() {
    // A file that is opened takes the lowest number that is free.
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(standard, F_GETFD) < 0)
            open("/dev/null", standard == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    graphics::EndCleanlyOnSignals();
}

bool IsTerminalForErrors() {
    return isatty(STDERR_FILENO) != 0;
}

}  // namespace orbelle::cli
