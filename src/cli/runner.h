// From options to jobs that run, once or again and again.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "cli/batch.h"
#include "cli/options.h"

namespace orbelle::cli {

class Runner {
public:
    // Reads the names of the files for --each where standard input has them. Throws UsageError.
    Runner(Options options, const BatchStreams& streams);

    // Reads the script, if there is one, and plans the jobs anew: all are due then. Throws
    // UsageError, and there is no job then.
    void Plan();

    // Runs the jobs that are due and tells what went wrong. If nothing did, in any job, and no
    // files that were compared differ, writes the depfile. False when something did. Throws Failure
    // when the output can't be written.
    bool Run();

    // Empty: the verbs are the program's own words, or come from standard input.
    std::string ScriptFile() const;

    std::vector<Job> Jobs;

private:
    std::vector<VerbLine> ReadLines() const;
    void PlanOnce(const std::vector<VerbLine>& lines, Claims& claims);
    void PlanDepfile(Claims& claims) const;
    bool WriteDepfile() const;

    const Options options_;
    const BatchStreams streams_;
    Batch batch_;
};

}  // namespace orbelle::cli
