#include <windows.h>

#include "graphics/file_stamp.h"
#include "graphics/windows_handle.h"

namespace orbelle::graphics {
namespace {

constexpr std::uint64_t Joined(DWORD high, DWORD low) {
    return std::uint64_t{high} << 32 | low;
}

// The system counts hundreds of nanoseconds since 1601.
std::int64_t NanosecondsSince1970(FILETIME time) {
    constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;  // seconds
    constexpr std::int64_t kUnitsInSecond = 10'000'000;
    constexpr std::int64_t kNanosecondsInUnit = 100;
    const auto units = static_cast<std::int64_t>(Joined(time.dwHighDateTime, time.dwLowDateTime));
    return (units - kFrom1601To1970 * kUnitsInSecond) * kNanosecondsInUnit;
}

}  // namespace

FileStamp StampOf(const std::filesystem::path& path) noexcept {
    // The flag lets folders be opened, too.
    const WindowsHandle file(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kSharedByAll, nullptr,
                                         OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION found{};
    if (!file.IsOpen() || !GetFileInformationByHandle(file.Get(), &found))
        return {};
    return {found.dwVolumeSerialNumber, Joined(found.nFileIndexHigh, found.nFileIndexLow),
            Joined(found.nFileSizeHigh, found.nFileSizeLow),
            NanosecondsSince1970(found.ftLastWriteTime)};
}

}  // namespace orbelle::graphics
