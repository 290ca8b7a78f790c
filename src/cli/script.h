// Scripts: the verbs of a run in a text, one a line.
#pragma once

#include <istream>
#include <string>
#include <vector>

#include "cli/verb_table.h"

namespace orbelle::cli {

// The words of one line, parted by blanks. Double quotes keep blanks and '#'; they may stand
// anywhere in a word. A '#' at the start of a word begins a comment, unless the word reads as a
// colour and is not the first. Throws UsageError for a quote that is not closed.
std::vector<std::string> SplitLine(std::string_view line);

struct VerbLine {
    std::vector<std::string> Words;
    std::string Place{};  // "FILE:LINE: "; empty: not from a script, and any number of verbs
};

// The lines of a script that have words; `name` is the script's, for messages. A byte order mark is
// passed over. Throws UsageError, which begins with the script's name and the line, and for a
// script that can't be read or is longer than 16 MiB.
std::vector<VerbLine> ReadScript(std::istream& script, const std::string& name);

// Throws UsageError, which begins with the place.
std::vector<Call> ParseLines(const std::vector<VerbLine>& lines);

}  // namespace orbelle::cli
