// The verbs, and how words become calls of them.
#pragma once

#include <filesystem>
#include <functional>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/used_files.h"
#include "cli/words.h"
#include "cli/workspace.h"

namespace orbelle::cli {

// What a verb does once its arguments are known. Throws on failure.
using Action = std::function<void(Workspace&)>;

struct Verb {
    std::string_view Name;
    std::string_view Arguments;  // for the help
    std::string_view Help;
    Action (*Read)(Words& arguments);  // throws UsageError; changes nothing
    std::string_view Example;          // verbs of a run, as a shell takes them
    std::string_view Values = {};      // words that an argument may be, a blank between them
    std::string_view Files = {};  // likewise the extensions of files that it may be; "/": a folder
};

// The Read of a verb without arguments.
template <void (*kRun)(Workspace&)>
Action ReadNothing(Words&) {
    return kRun;
}

// The same of one that prints.
template <void (*kRun)(Workspace&)>
Action ReadPrinter(Words& words) {
    words.NotePrinting();
    return kRun;
}

// The Read of a verb whose one argument is a file to read.
template <void (*kRun)(Workspace&, const InputFile&), FileRole kKind = FileRole::Read>
Action ReadInput(Words& words) {
    return [file = words.Input("PATH", kKind)](Workspace& workspace) {
        kRun(workspace, InputFile(workspace, file));
    };
}

// By topic, in the order of the help.
std::span<const Verb> FileVerbs();
std::span<const Verb> ExportVerbs();
std::span<const Verb> PageVerbs();
std::span<const Verb> LayerVerbs();
std::span<const Verb> ToolVerbs();
std::span<const Verb> PointerVerbs();
std::span<const Verb> StackVerbs();
std::span<const Verb> ReportVerbs();

// All of them, in that order.
std::vector<const Verb*> AllVerbs();

// Null when there is none of that name.
const Verb* FindVerb(std::string_view name);

// Why a word is none: it has the verb that was meant, where one is near.
std::string DescribeUnknownVerb(const std::string& word);

// A line for each verb, after a line end.
std::string VerbHelp();
// All there is to tell about one of them, whole lines.
std::string VerbHelp(const Verb& verb);

// A verb with arguments that have been checked.
struct Call {
    std::vector<std::string> Words;  // as typed, the verb first
    Action Run;
    std::string Place{};  // in a script: "FILE:LINE: "
    std::vector<FileUse> Files{};
    bool Prints = false;
};

// All calls in the words. Throws UsageError, which begins with the verb that it is about.
std::vector<Call> ParseCalls(std::span<const std::string> words);

// Runs the calls in order. Throws Failure, with the call and its place before what is wrong, at the
// first that fails. What a call has to tell although it went well goes to `notes` in the same way,
// a line each.
void RunCalls(std::span<const Call> calls, Workspace& workspace, std::ostream& notes = std::cerr);

}  // namespace orbelle::cli
