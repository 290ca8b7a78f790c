// What make and ninja read about outputs and the files that they were made of.
#pragma once

#include <span>
#include <string>

#include "cli/job.h"

namespace orbelle::cli {

// A name as both read it, as that of an output or an input. Throws UsageError when there is no way
// to write it for both.
std::string NameForDepfile(const std::string& name, bool isOutput);

// A line "OUTPUT: INPUT INPUT..." for each file that the jobs have written, with what its job read
// and the script, if there is one. What a job has written itself is none of its inputs: nothing
// would ever be up to date.
std::string DescribeOutputs(std::span<const Job> jobs, const std::string& script);

// Throws UsageError when the jobs are going to have names that can't be told, or no output.
void CheckOutputNames(std::span<const Job> jobs, const std::string& script);

}  // namespace orbelle::cli
