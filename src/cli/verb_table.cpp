#include "cli/verb_table.h"

#include <algorithm>
#include <new>
#include <utility>

#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

constexpr std::size_t kHelpColumn = 36;

std::string Usage(const Verb& verb) {
    std::string usage(verb.Name);
    return verb.Arguments.empty() ? usage : usage.append(" ").append(verb.Arguments);
}

std::string Describe(const Call& call, std::string problem) {
    // The core's messages begin with the path, which mostly ends the call already.
    std::string path = call.Words.back();
    for (const FileUse& use : call.Files) {
        if (use.File.IsStandard() && IsOfMemoryFile(problem))
            path = problem.substr(0, problem.find(": "));
        else if (!use.File.Format.empty() &&
                 call.Words.back().ends_with(graphics::Utf8Of(use.File.Path)))
            path = graphics::Utf8Of(use.File.Path);
    }
    if (problem.starts_with(path + ": "))
        problem.erase(0, path.size() + 2);
    return call.Place + JoinWords(call.Words) + ": " + problem;
}

}  // namespace

std::vector<const Verb*> AllVerbs() {
    std::vector<const Verb*> verbs;
    for (const std::span<const Verb> topic :
         {FileVerbs(), ExportVerbs(), PageVerbs(), LayerVerbs(), StackVerbs(), ToolVerbs(),
          PointerVerbs(), ReportVerbs()}) {
        for (const Verb& verb : topic)
            verbs.push_back(&verb);
    }
    return verbs;
}

const Verb* FindVerb(std::string_view name) {
    static const std::vector<const Verb*> verbs = AllVerbs();
    const auto found = std::ranges::find(verbs, name, &Verb::Name);
    return found == verbs.end() ? nullptr : *found;
}

std::string DescribeUnknownVerb(const std::string& word) {
    std::vector<std::string_view> names;
    for (const Verb* verb : AllVerbs())
        names.push_back(verb->Name);
    return JoinWords({&word, 1}) + ": unknown verb" + DidYouMean(word, names);
}

std::string VerbHelp(const Verb& verb) {
    return "orbelle-cli ... " + Usage(verb) + "\n  " + std::string(verb.Help) +
           "\n\nExample:\n  orbelle-cli " + std::string(verb.Example) + '\n';
}

std::string VerbHelp() {
    std::string help;
    for (const Verb* verb : AllVerbs()) {
        std::string line = "  " + Usage(*verb);
        line.resize(std::max(kHelpColumn, line.size() + 1), ' ');
        help.append("\n").append(line).append(verb->Help);
    }
    return help;
}

std::vector<Call> ParseCalls(std::span<const std::string> words) {
    std::vector<Call> calls;
    while (!words.empty()) {
        const Verb* verb = FindVerb(words[0]);
        if (!verb)
            throw UsageError(DescribeUnknownVerb(words[0]));
        Words arguments(words.subspan(1));
        const auto taken = [&] { return words.first(1 + arguments.Taken()); };
        try {
            Action action = verb->Read(arguments);
            calls.push_back({{taken().begin(), taken().end()},
                             std::move(action),
                             {},
                             arguments.Files(),
                             arguments.Prints()});
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
