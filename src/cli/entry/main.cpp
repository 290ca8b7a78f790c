#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <new>
#include <thread>

#include "cli/batch.h"
#include "cli/completion.h"
#include "cli/entry/process.h"
#include "cli/options.h"
#include "cli/plan.h"
#include "cli/recover.h"
#include "cli/script.h"
#include "cli/verb_table.h"

namespace {

using namespace orbelle::cli;

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

int Report(const std::exception& error, int status) {
    std::cerr << "orbelle-cli: " << error.what() << '\n';
    return status;
}

std::vector<VerbLine> ReadScriptFile(const std::string& name) {
    if (name == "-")
        return ReadScript(std::cin, name);
    std::ifstream file(name, std::ios::binary);
    if (!file)
        throw UsageError(name + ": " + std::strerror(errno));
    return ReadScript(file, name);
}

// In the place of "-" those that standard input names.
std::vector<std::string> ReadFileNames(const std::vector<std::string>& words) {
    std::vector<std::string> names;
    for (const std::string& word : words) {
        if (word != "-") {
            names.push_back(word);
            continue;
        }
        for (std::string line; std::getline(std::cin, line);) {
            if (!line.empty())
                names.push_back(line);
        }
        if (std::cin.bad())
            throw UsageError("-: can't be read");
    }
    return names;
}

int RunEach(const Options::EachFile& each, std::vector<VerbLine> lines, bool inputIsTaken) {
    const bool namesAreInput = std::ranges::find(each.Files, "-") != each.Files.end();
    const int cores = static_cast<int>(std::max(std::thread::hardware_concurrency(), 1U));
    const Batch batch{.Files = ReadFileNames(each.Files),
                      .Lines = std::move(lines),
                      .Jobs = each.Jobs.value_or(cores),
                      .KeepsGoing = each.KeepsGoing,
                      .IsJson = each.IsJson,
                      .InputIsTaken = inputIsTaken || namesAreInput};
    return RunBatch(batch, {std::cout, std::cerr, IsTerminalForErrors()}) ? kSucceeded : kFailed;
}

int Run(const Options& options) {
    const bool inputIsTaken = options.Script == "-";
    const std::vector<VerbLine> lines =
        options.Script ? ReadScriptFile(*options.Script) : std::vector{VerbLine{options.Verbs}};
    if (options.Each)
        return RunEach(*options.Each, lines, inputIsTaken);
    const std::vector<Call> calls = ParseLines(lines);
    PlanRun(calls, inputIsTaken);
    Workspace workspace(std::cout);
    RunCalls(calls, workspace);
    return workspace.Differs ? kFailed : kSucceeded;
}

}  // namespace

int main(int argc, char** argv) {
    PrepareProcess();
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);  // several threads may be at work
    try {
        const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
        const Options options = ReadOptions(words);
        switch (options.Task) {
            case Options::Task::Help:
                std::cout << (options.HelpOn ? VerbHelp(*options.HelpOn) : ProgramHelp());
                RequirePrinted(std::cout);
                break;
            case Options::Task::Version:
                std::cout << "orbelle-cli " ORBELLE_VERSION "\n";
                RequirePrinted(std::cout);
                break;
            case Options::Task::Completion:
                std::cout << CompletionScript(options.Shell);
                RequirePrinted(std::cout);
                break;
            case Options::Task::Recover:
                Recover(options.Recover, std::cout);
                break;
            case Options::Task::Run:
                return Run(options);
        }
    } catch (const UsageError& error) {
        return Report(error, kWrongUsage);
    } catch (const std::bad_alloc&) {
        std::cerr << "orbelle-cli: there is not enough memory\n";
        return kFailed;
    } catch (const std::exception& error) {
        return Report(error, kFailed);
    }
    return kSucceeded;
}
