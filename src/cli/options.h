// What the program is asked to do: the options before the verbs.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orbelle::cli {

struct Verb;

struct Options {
    enum class Task { Run, Help, Version, Completion, Recover };

    Options::Task Task = Task::Run;
    const Verb* HelpOn = nullptr;      // null: on all
    std::string Shell;                 // for Task::Completion
    std::vector<std::string> Recover;  // the words after --recover
    // Verbs that run once for each of these, which may be none.
    struct EachFile {
        std::vector<std::string> Files;  // "-": those named on standard input
        std::optional<int> Jobs;
        bool KeepsGoing = false;
        bool IsJson = false;
    };
    std::optional<EachFile> Each;
    // One of both for Task::Run: a file, "-" for standard input; or the words of the verbs.
    std::optional<std::string> Script;
    std::vector<std::string> Verbs;
    std::string Depfile;   // empty: none is written
    bool Watches = false;  // runs again when a file changes
};

// From the first word that is no option on all words belong to verbs. Throws UsageError.
Options ReadOptions(std::span<const std::string> words);

// What --help prints.
std::string ProgramHelp();

}  // namespace orbelle::cli
