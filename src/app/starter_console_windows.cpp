#include <windows.h>

#include <cstdio>
#include <cstdlib>

#include "app/starter_console.h"
#include "editing/editor_state.h"

namespace orbelle::app {
namespace {

UINT charsetBefore = 0;

void RestoreCharset() {
    SetConsoleOutputCP(charsetBefore);
}

// Into a file or a pipe, which the starter may have put there.
bool IsUsed(DWORD stream) {
    const HANDLE handle = GetStdHandle(stream);
    return handle && handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

}  // namespace

void UseConsoleOfStarter() {
    const bool hasOutput = IsUsed(STD_OUTPUT_HANDLE), hasErrors = IsUsed(STD_ERROR_HANDLE);
    if (!AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    if (!hasOutput)
        std::freopen("CONOUT$", "w", stdout);
    if (!hasErrors)
        std::freopen("CONOUT$", "w", stderr);
    // The toolkit writes in the charset of windows, which is not that of consoles.
    charsetBefore = GetConsoleOutputCP();
    SetConsoleOutputCP(GetACP());
    std::atexit(RestoreCharset);
}

void TellStarter(const QString& problem) {
    if (IsUsed(STD_ERROR_HANDLE) || GetConsoleWindow())
        std::fprintf(stderr, "orbelle: %s\n", qPrintable(problem));
    else
        MessageBoxW(nullptr, problem.toStdWString().c_str(),
                    QString(editing::kProductName).toStdWString().c_str(), MB_ICONERROR);
}

}  // namespace orbelle::app
