// A run of verbs that is planned: the whole of what the program is asked for, or one file's part.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/plan.h"

namespace orbelle::cli {

struct Job {
    std::string File;  // of --each; empty: there is but one job
    std::vector<Call> Calls;
    cli::Plan Plan;

    bool IsDue = true;  // it has not run since it was planned, or since what it reads has changed
    // Of its last run.
    std::string Error{};   // empty: it went well
    bool Differs = false;  // files that it compared
    std::vector<WrittenFile> Written{};
};

// Runs it in a workspace of its own. Verbs print to `output` and tell to `notes`.
void RunJob(Job& job, std::ostream& output, std::ostream& notes);

}  // namespace orbelle::cli
