#include "support/system.h"

#include <windows.h>

#include <cwchar>
#include <random>
#include <system_error>
#include <utility>

#include "graphics/path_text.h"

namespace orbelle::testing {
namespace {

namespace fs = std::filesystem;
using graphics::PathOfUtf8;
using graphics::Utf8Of;

constexpr DWORD kKilled = 0x1000;

[[noreturn]] void Fail(const char* what) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

std::wstring Wide(const std::string& text) {
    return PathOfUtf8(text).native();
}

// A file that the child inherits.
class InheritedFile {
public:
    InheritedFile(const fs::path& path, DWORD access, DWORD creation) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        handle_ = CreateFileW(path.c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                              creation, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle_ == INVALID_HANDLE_VALUE)
            Fail("CreateFile");
    }
    ~InheritedFile() { CloseHandle(handle_); }
    InheritedFile(const InheritedFile&) = delete;
    InheritedFile& operator=(const InheritedFile&) = delete;

    HANDLE Handle() const { return handle_; }

private:
    HANDLE handle_;
};

// So that the child's arguments are these again: backslashes count only before a double quote.
std::wstring Quoted(const std::string& argument) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : Wide(argument)) {
        if (c == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring CommandLine(const ProgramCall& call) {
    std::wstring line = Quoted(Utf8Of(call.File));
    for (const std::string& argument : call.Arguments)
        line += L' ' + Quoted(argument);
    return line;
}

struct WithoutCase {
    bool operator()(const std::wstring& a, const std::wstring& b) const {
        return _wcsicmp(a.c_str(), b.c_str()) < 0;
    }
};

// "NAME=VALUE", each ended by a 0, sorted by name, and one more 0.
std::wstring EnvironmentBlock(const Environment& variables) {
    std::map<std::wstring, std::wstring, WithoutCase> all;
    wchar_t* const own = GetEnvironmentStringsW();
    for (const wchar_t* entry = own; *entry; entry += std::wcslen(entry) + 1) {
        const std::wstring text = entry;
        // Some begin with "=", as "=C:" for the current folder of a drive.
        const std::size_t end = text.find(L'=', 1);
        all[text.substr(0, end)] = text.substr(end + 1);
    }
    FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : variables)
        all[Wide(name)] = Wide(value);
    std::wstring block;
    for (const auto& [name, value] : all)
        block += name + L'=' + value + L'\0';
    return block + L'\0';
}

HANDLE HandleOf(std::intptr_t process) {
    return reinterpret_cast<HANDLE>(process);
}

}  // namespace

fs::path MakeTemporaryFolder() {
    std::random_device random;
    for (;;) {
        const fs::path folder =
            fs::temp_directory_path() / (L"orbelle-" + std::to_wstring(random()));
        if (fs::create_directory(folder))
            return folder;
    }
}

void SetEnvironment(const Environment& variables) {
    for (const auto& [name, value] : variables)
        _wputenv_s(Wide(name).c_str(), Wide(value).c_str());
}

RunningProgram::RunningProgram(const ProgramCall& call) {
    const InheritedFile input(call.Folder / call.Input, GENERIC_READ, OPEN_EXISTING);
    const InheritedFile output(call.Folder / call.Output, GENERIC_WRITE, CREATE_ALWAYS);
    const InheritedFile errors(call.Folder / call.Errors, GENERIC_WRITE, CREATE_ALWAYS);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input.Handle();
    start.hStdOutput = output.Handle();
    start.hStdError = errors.Handle();
    std::wstring line = CommandLine(call), variables = EnvironmentBlock(call.Variables);
    PROCESS_INFORMATION started = {};
    if (!CreateProcessW(call.File.c_str(), line.data(), nullptr, nullptr, TRUE,
                        CREATE_UNICODE_ENVIRONMENT, variables.data(), call.Folder.c_str(), &start,
                        &started))
        Fail("CreateProcess");
    CloseHandle(started.hThread);
    process_ = reinterpret_cast<std::intptr_t>(started.hProcess);
}

RunningProgram::~RunningProgram() {
    Kill();
}

int RunningProgram::Wait() {
    const HANDLE process = HandleOf(std::exchange(process_, 0));
    DWORD status = 0;
    WaitForSingleObject(process, INFINITE);
    GetExitCodeProcess(process, &status);
    CloseHandle(process);
    return static_cast<int>(status);
}

void RunningProgram::Kill() {
    if (process_ == 0)
        return;
    TerminateProcess(HandleOf(process_), kKilled);
    Wait();
}

bool RunningProgram::Interrupt() {
    TerminateProcess(HandleOf(process_), kKilled);
    return Wait() == static_cast<int>(kKilled);
}

}  // namespace orbelle::testing
