#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "cli/entry/process.h"
#include "graphics/path_text.h"
#include "graphics/unfinished_files.h"

// The compiler's start would put names in the place of patterns, wherever they stand.
int _CRT_glob = 0;

namespace orbelle::cli {
namespace {

UINT codePageBefore = 0;

}  // namespace

void PrepareProcess() {
    for (std::FILE* standard : {stdin, stdout, stderr})
        _setmode(_fileno(standard), _O_BINARY);
    codePageBefore = GetConsoleOutputCP();
    if (codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit([] { SetConsoleOutputCP(codePageBefore); });
    graphics::EndCleanlyOnSignals();
}

// What main was given is in the code page of the system.
std::vector<std::string> ArgumentsOf(int, char**) {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; words && i < count; ++i)
        arguments.push_back(graphics::Utf8Of(words.get()[i]));
    return arguments;
}

bool IsTerminalForErrors() {
    const HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(errors, &mode) &&
           SetConsoleMode(errors, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

}  // namespace orbelle::cli
