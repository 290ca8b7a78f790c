// Runs that are done again when a file changes.
#pragma once

#include "cli/runner.h"

namespace orbelle::cli {

// Plans and runs, and again whenever the script or what a job reads has changed: all jobs or those.
// What goes wrong is told, and a script that can't be used is waited for. What a job writes itself
// does not count as a change. Returns when the output can't be written any more.
//
// Throws UsageError before anything runs, also for what can't be read again: standard input.
void Watch(Runner& runner, const BatchStreams& streams);

}  // namespace orbelle::cli
