#include "cli/verb_table.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace orbelle::cli {
namespace {

constexpr std::size_t kHelpColumn = 36;

std::array<std::span<const Verb>, 8> Topics() {
    return {FileVerbs(),  ExportVerbs(), PageVerbs(),    LayerVerbs(),
            StackVerbs(), ToolVerbs(),   PointerVerbs(), ReportVerbs()};
}

std::string Describe(const Call& call, std::string problem) {
    // The core's messages begin with the path, which mostly ends the call already.
    const std::string path = call.Words.back() + ": ";
    if (problem.starts_with(path))
        problem.erase(0, path.size());
    return call.Place + JoinWords(call.Words) + ": " + problem;
}

}  // namespace

const Verb* FindVerb(std::string_view name) {
    for (const std::span<const Verb> topic : Topics()) {
        for (const Verb& verb : topic) {
            if (verb.Name == name)
                return &verb;
        }
    }
    return nullptr;
}

std::string VerbHelp() {
    std::string help;
    for (const std::span<const Verb> topic : Topics()) {
        for (const Verb& verb : topic) {
            std::string line = "  " + std::string(verb.Name);
            if (!verb.Arguments.empty())
                line.append(" ").append(verb.Arguments);
            line.resize(std::max(kHelpColumn, line.size() + 1), ' ');
            help.append("\n").append(line).append(verb.Help);
        }
    }
    return help;
}

std::vector<Call> ParseCalls(std::span<const std::string> words) {
    std::vector<Call> calls;
    while (!words.empty()) {
        const Verb* verb = FindVerb(words[0]);
        if (!verb)
            throw UsageError(JoinWords(words.first(1)) + ": unknown verb");
        Words arguments(words.subspan(1));
        const auto taken = [&] { return words.first(1 + arguments.Taken()); };
        try {
            Action action = verb->Read(arguments);
            calls.push_back({{taken().begin(), taken().end()}, std::move(action)});
        } catch (const UsageError& error) {
            throw UsageError(JoinWords(taken()) + ": " + error.what());
        }
        words = words.subspan(taken().size());
    }
    return calls;
}

void RunCalls(std::span<const Call> calls, Workspace& workspace, std::ostream& notes) {
    for (const Call& call : calls) {
        std::string problem;
        try {
            call.Run(workspace);
        } catch (const std::bad_alloc&) {
            problem = "there is not enough memory";
        } catch (const std::exception& error) {
            problem = error.what();
        }
        if (!problem.empty())
            throw Failure(Describe(call, problem));
        if (const std::string message = workspace.TakeMessage(); !message.empty())
            notes << "orbelle-cli: " << Describe(call, message) << std::endl;
    }
}

}  // namespace orbelle::cli
