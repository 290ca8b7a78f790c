// One set of verbs for many files.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/script.h"

namespace orbelle::cli {

struct Batch {
    std::vector<std::string> Files;
    std::vector<VerbLine> Lines;  // with "{}" and the like
    int Jobs = 1;
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

// Runs the verbs once for each file, in an editor of its own, on so many threads. What is printed
// and told comes in the order of the files. Without KeepsGoing none is begun after one that failed.
// True when none failed and no two files that they compared differ.
//
// Throws UsageError before anything runs: for wrong verbs, for a path that two files would write or
// one would write and another one read. Throws Failure when the output can't be written.
bool RunBatch(const Batch& batch, const BatchStreams& streams);

}  // namespace orbelle::cli
