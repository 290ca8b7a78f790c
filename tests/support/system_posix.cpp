#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "support/system.h"

namespace orbelle::testing {
namespace {

namespace fs = std::filesystem;

constexpr int kNotStarted = 127;

[[noreturn]] void Fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

// In the child, which has nobody to tell a failure but its parent by the status.
void Open(const fs::path& path, int flags, int descriptor) {
    const int file = open(path.c_str(), flags, 0666);
    if (file < 0 || dup2(file, descriptor) < 0)
        _exit(kNotStarted);
    close(file);
}

[[noreturn]] void Become(const ProgramCall& call) {
    if (chdir(call.Folder.c_str()) != 0)
        _exit(kNotStarted);
    SetEnvironment(call.Variables);
    Open(call.Input, O_RDONLY, STDIN_FILENO);
    Open(call.Output, O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    Open(call.Errors, O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
    std::signal(SIGINT, SIG_DFL);
    std::string program = call.File.native();
    std::vector<std::string> arguments = call.Arguments;
    std::vector<char*> words = {program.data()};
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(kNotStarted);
}

int WaitFor(std::intptr_t process) {
    int status = 0;
    while (waitpid(static_cast<pid_t>(process), &status, 0) < 0) {
        if (errno != EINTR)
            Fail("waitpid");
    }
    return status;
}

}  // namespace

fs::path MakeTemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "orbelle-XXXXXX").native();
    if (!mkdtemp(name.data()))
        Fail("mkdtemp");
    return name;
}

void SetEnvironment(const Environment& variables) {
    for (const auto& [name, value] : variables)
        setenv(name.c_str(), value.c_str(), 1);
}

RunningProgram::RunningProgram(const ProgramCall& call) : process_(fork()) {
    if (process_ < 0)
        Fail("fork");
    if (process_ == 0)
        Become(call);
}

RunningProgram::~RunningProgram() {
    Kill();
}

int RunningProgram::Wait() {
    const int status = WaitFor(std::exchange(process_, 0));
    return WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
}

void RunningProgram::Kill() {
    if (process_ == 0)
        return;
    kill(static_cast<pid_t>(process_), SIGKILL);
    WaitFor(std::exchange(process_, 0));
}

bool RunningProgram::Interrupt() {
    kill(static_cast<pid_t>(process_), SIGINT);
    const int status = WaitFor(std::exchange(process_, 0));
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGINT;
}

}  // namespace orbelle::testing
