#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <new>

#include "cli/entry/process.h"
#include "cli/options.h"
#include "cli/plan.h"
#include "cli/recover.h"
#include "cli/script.h"
#include "cli/verb_table.h"

namespace {

using namespace orbelle::cli;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

int Report(const std::exception& error, int status) {
    std::cerr << "orbelle-cli: " << error.what() << '\n';
    return status;
}

std::vector<Call> ParseScriptFile(const std::string& name) {
    if (name == "-")
        return ParseScript(std::cin, name);
    std::ifstream file(name, std::ios::binary);
    if (!file)
        throw UsageError(name + ": " + std::strerror(errno));
    return ParseScript(file, name);
}

void Run(const Options& options) {
    const std::vector<Call> calls =
        options.Script ? ParseScriptFile(*options.Script) : ParseCalls(options.Verbs);
    PlanRun(calls, options.Script == "-");
    Workspace workspace(std::cout);
    RunCalls(calls, workspace);
}

}  // namespace

int main(int argc, char** argv) {
    PrepareProcess();
    std::ios::sync_with_stdio(false);
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
            case Options::Task::Recover:
                Recover(options.Recover, std::cout);
                break;
            case Options::Task::Run:
                Run(options);
                break;
        }
    } catch (const UsageError& error) {
        return Report(error, kWrongUsage);
    } catch (const std::bad_alloc&) {
        std::cerr << "orbelle-cli: there is not enough memory\n";
        return kFailed;
    } catch (const std::exception& error) {
        return Report(error, kFailed);
    }
    return 0;
}
