#include <windows.h>

#include "app/starter_console.h"
#include "editing/editor_state.h"

namespace orbelle::app {
namespace {

// Where words for a standard stream go: the file, pipe or console that the starter gave, or else
// its own console. Nowhere: INVALID_HANDLE_VALUE.
HANDLE PlaceOf(DWORD stream) {
    const HANDLE given = GetStdHandle(stream);
    if (given && given != INVALID_HANDLE_VALUE && GetFileType(given) != FILE_TYPE_UNKNOWN)
        return given;
    if (!AttachConsole(ATTACH_PARENT_PROCESS))
        return INVALID_HANDLE_VALUE;
    return CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       nullptr, OPEN_EXISTING, 0, nullptr);
}

void Tell(DWORD stream, const QString& text, UINT boxIcon) {
    const HANDLE place = PlaceOf(stream);
    DWORD mode = 0, written = 0;
    if (place == INVALID_HANDLE_VALUE) {
        MessageBoxW(nullptr, qUtf16Printable(text), qUtf16Printable(QString(editing::kProductName)),
                    boxIcon);
    } else if (GetConsoleMode(place, &mode)) {
        WriteConsoleW(place, text.utf16(), DWORD(text.size()), &written, nullptr);
    } else {
        const QByteArray bytes = text.toUtf8();
        WriteFile(place, bytes.data(), DWORD(bytes.size()), &written, nullptr);
    }
}

}  // namespace

void AnswerStarter(const QString& text) {
    Tell(STD_OUTPUT_HANDLE, text, MB_ICONINFORMATION);
}

void TellStarter(const QString& problem) {
    Tell(STD_ERROR_HANDLE, "orbelle: " + problem + '\n', MB_ICONERROR);
}

}  // namespace orbelle::app
