#include <iostream>
#include <new>

#include "cli/completion.h"
#include "cli/entry/process.h"
#include "cli/options.h"
#include "cli/recover.h"
#include "cli/runner.h"
#include "cli/verb_table.h"
#include "cli/watch.h"

namespace {

using namespace orbelle::cli;

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

int Report(const std::exception& error, int status) {
    std::cerr << "orbelle-cli: " << error.what() << '\n';
    return status;
}

int Run(const Options& options) {
    const BatchStreams streams{std::cout, std::cerr, IsTerminalForErrors()};
    Runner runner(options, streams);
    if (options.Watches) {
        Watch(runner, streams);
        return kFailed;
    }
    runner.Plan();
    return runner.Run() ? kSucceeded : kFailed;
}

}  // namespace

int main(int argc, char** argv) {
    PrepareProcess();
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);  // several threads may be at work
    try {
        const Options options = ReadOptions(ArgumentsOf(argc, argv));
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
