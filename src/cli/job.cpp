#include "cli/job.h"

#include <new>
#include <utility>

namespace orbelle::cli {

void RunJob(Job& job, std::ostream& output, std::ostream& notes) {
    job.IsDue = false;
    job.Error.clear();
    job.Differs = false;
    job.Written.clear();
    try {
        Workspace workspace(output);
        try {
            RunCalls(job.Calls, workspace, notes);
        } catch (const Failure& failure) {
            job.Error = failure.what();
        }
        job.Differs = workspace.Differs;
        job.Written = std::move(workspace.Written);
    } catch (const std::bad_alloc&) {
        job.Error = "there is not enough memory";
    } catch (const std::exception& error) {
        job.Error = error.what();
    }
}

}  // namespace orbelle::cli
