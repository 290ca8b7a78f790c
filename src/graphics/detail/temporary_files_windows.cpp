#include <windows.h>

#include <ntsecapi.h>

#include "graphics/detail/temporary_files.h"
#include "graphics/path_text.h"
#include "graphics/windows_handle.h"

namespace orbelle::graphics::detail {

namespace fs = std::filesystem;

int OwnProcess() {
    return static_cast<int>(GetCurrentProcessId());
}

bool IsGone(int process) {
    const WindowsHandle handle(OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process)));
    if (!handle.IsOpen())
        return GetLastError() == ERROR_INVALID_PARAMETER;
    // Somebody else may have kept a handle of one that has ended.
    return WaitForSingleObject(handle.Get(), 0) == WAIT_OBJECT_0;
}

std::optional<std::uint64_t> RandomOfSystem() {
    std::uint64_t random = 0;
    return RtlGenRandom(&random, sizeof random) ? std::optional(random) : std::nullopt;
}

std::vector<std::string> NamesIn(const fs::path& folder, std::string_view front,
                                 std::string_view back) {
    std::vector<std::string> names;
    const fs::path pattern = folder / PathOfUtf8(std::string(front) + '*' + std::string(back));
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW(pattern.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        names.push_back(Utf8Of(entry.cFileName));
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return names;
}

void RemoveUnlessOpen(const fs::path& path) {
    // Nobody has open what is ours alone, and closing it removes it.
    const WindowsHandle file(CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                         FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT,
                                         nullptr));
}

}  // namespace orbelle::graphics::detail
