#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <new>

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
    try {
        if (name == "-")
            return ParseScript(std::cin);
        std::ifstream file(name, std::ios::binary);
        if (!file)
            throw UsageError(std::strerror(errno));
        return ParseScript(file);
    } catch (const UsageError& error) {
        throw UsageError((name == "-" ? "standard input" : name) + ": " + error.what());
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    try {
        CLI::App app(
            "The icon editor without a window:\n"
            "  orbelle-cli VERB [ARG...] [VERB [ARG...]]...\n"
            "  orbelle-cli --script FILE\n"
            "  orbelle-cli --recover [list | N PATH]\n",
            "orbelle-cli");
        app.set_version_flag("--version", "orbelle-cli " ORBELLE_VERSION);
        std::string script;
        app.add_option("--script", script,
                       "Read the verbs from FILE, one a line; '-': standard input")
            ->type_name("FILE");
        std::vector<std::string> recover;
        const CLI::Option* recovers =
            app.add_option("--recover", recover,
                           "List what the window kept safe when it was killed, or write number N to "
                           "PATH as a document")
                ->type_name("[list | N PATH]")
                ->expected(0, 2);
        app.footer([] { return "Verbs, run in order:" + VerbHelp(); });
        // From the first word that is no option on, all words belong to verbs, whatever they look
        // like.
        app.prefix_command();
        try {
            app.parse(argc, argv);
        } catch (const CLI::Success& help) {
            return app.exit(help);
        }
        const std::vector<std::string> words = app.remaining();
        if (recovers->count() > 0) {
            if (!words.empty() || !script.empty())
                throw UsageError("--recover stands alone");
            Recover(recover, std::cout);
            return 0;
        }
        if (words.empty() == script.empty())
            throw UsageError("either verbs or --script FILE are needed; see orbelle-cli --help");
        const std::vector<Call> calls =
            script.empty() ? ParseCalls(words) : ParseScriptFile(script);
        Workspace workspace(std::cout);
        RunCalls(calls, workspace);
    } catch (const CLI::ParseError& error) {
        return Report(error, kWrongUsage);
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
