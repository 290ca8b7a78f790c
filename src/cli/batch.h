// One set of verbs for many files.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/claims.h"
#include "cli/job.h"
#include "cli/script.h"

namespace orbelle::cli {

struct Batch {
    std::vector<std::string> Files;
    std::optional<int> Jobs = 1;  // at a time; nothing: as many as keep all cores busy
    bool KeepsGoing = false;
    bool IsJson = false;
    bool InputIsTaken = false;  // by the names of the files, or the script
};

struct BatchStreams {
    std::ostream& Output;
    std::ostream& Errors;
    bool ShowsProgress = false;  // on Errors, a terminal
};

// In the words of the verbs: {} is the file's path, {name} its name, {stem} the name without its
// last extension, {dir} its folder ("." where the path has none). A path that would be taken for
// something else begins with "./".
std::vector<std::string> FillIn(const std::vector<std::string>& words, const std::string& file);

// A job for each file, from lines with "{}" and the like. Throws UsageError: for wrong verbs, for
// a path that two files would write.
std::vector<Job> PlanBatch(const Batch& batch, const std::vector<VerbLine>& lines, Claims& claims);

// Runs the jobs that are due, on so many threads. What is printed and told comes in their order.
// Without KeepsGoing none is begun after one that failed. Throws Failure when the output can't be
// written.
void RunBatch(const Batch& batch, std::vector<Job>& jobs, const BatchStreams& streams);

}  // namespace orbelle::cli
