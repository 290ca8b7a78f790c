// What tests need of the system itself: folders, environment variables, programs. Text is UTF-8.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace orbelle::testing {

using Environment = std::map<std::string, std::string>;

// A new folder among the system's temporary files, for this user alone.
std::filesystem::path MakeTemporaryFolder();

// Variables that put all that the product keeps for its user into a folder: `state/orbelle` and
// `cache/Sizes` are in there then.
Environment EnvironmentIn(const std::filesystem::path& folder);

// For this process from here on.
void SetEnvironment(const Environment& variables);

struct ProgramCall {
    std::filesystem::path File;
    std::vector<std::string> Arguments;  // without the program's name
    std::filesystem::path Folder;        // that it runs in; the other paths may be relative to it
    Environment Variables;               // beside those of this process
    // What its standard input is read from, and what is made anew of the others.
    std::filesystem::path Input, Output, Errors;
};

class RunningProgram {
public:
    // Throws std::system_error when it can't be started.
    explicit RunningProgram(const ProgramCall& call);
    // Ends it.
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    // Its exit status; above 255 when it did not exit by itself.
    int Wait();
    // At once, with no time to put anything in order.
    void Kill();
    // As Ctrl+C does, or Kill where no single program can be told so. False when it had ended by
    // itself or did not end so.
    bool Interrupt();

private:
    std::intptr_t process_;  // 0: it has ended
};

int RunProgram(const ProgramCall& call);

}  // namespace orbelle::testing
