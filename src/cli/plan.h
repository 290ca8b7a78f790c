// What a run is going to read and write, known before it begins.
#pragma once

#include <span>
#include <vector>

#include "cli/verb_table.h"

namespace orbelle::cli {

struct Plan {
    std::vector<std::filesystem::path> Reads;
    std::vector<std::filesystem::path> Writes;
    bool ReadsStandardInput = false;
    bool WritesStandardOutput = false;  // a file; not what verbs print
};

// A set's files are those for the name that the document has by then, as far as names tell it.
// Throws UsageError, with the call before what is wrong, for a second use of standard input, and
// for one of standard output where a file goes there.
// `inputIsTaken`: the verbs themselves came from standard input.
Plan PlanRun(std::span<const Call> calls, bool inputIsTaken = false);

}  // namespace orbelle::cli
