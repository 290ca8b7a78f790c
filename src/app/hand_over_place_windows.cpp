#include <windows.h>
// The other headers of the system need the first.
#include <sddl.h>

#include <QDir>
#include <vector>

#include "app/hand_over_place.h"

namespace orbelle::app {
namespace {

// Who runs the program, as "S-1-5-..."; empty: unknown.
QString UserId() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    std::vector<BYTE> user(size);
    QString id;
    wchar_t* text = nullptr;
    if (size > 0 && GetTokenInformation(token, TokenUser, user.data(), size, &size) &&
        ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &text)) {
        id = QString::fromWCharArray(text);
        LocalFree(text);
    }
    CloseHandle(token);
    return id;
}

}  // namespace

// Names of pipes are those of the whole computer.
HandOverPlace FindHandOverPlace() {
    const QString user = UserId();
    DWORD session = 0;
    if (user.isEmpty() || !ProcessIdToSessionId(GetCurrentProcessId(), &session))
        return {};
    const QString server = QString("Orbelle-MainWindow-%1-%2").arg(user).arg(session);
    return {server, QDir::temp().filePath(server + ".lock")};
}

void LetOthersToFront() {
    AllowSetForegroundWindow(ASFW_ANY);
}

}  // namespace orbelle::app
