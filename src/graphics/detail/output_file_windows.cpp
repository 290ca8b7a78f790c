#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <system_error>
#include <utility>

#include "graphics/detail/output_file.h"
#include "graphics/windows_handle.h"

namespace orbelle::graphics::detail {
namespace {

namespace fs = std::filesystem;

// Windows has no numbers for open files; theirs is that of the handle, which fits.
constexpr int kClosed = -1;

[[noreturn]] void ThrowError(DWORD error) {
    throw std::system_error(static_cast<int>(error), std::system_category());
}

void Require(BOOL result) {
    if (!result)
        ThrowError(GetLastError());
}

int NumberOf(HANDLE handle) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(handle));
}

HANDLE HandleOf(int number) {
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(number));
}

int Open(const fs::path& path, DWORD sharing, DWORD disposition) {
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, sharing, nullptr, disposition,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        ThrowError(GetLastError());
    return NumberOf(handle);
}

std::uint64_t SizeOf(HANDLE file) {
    LARGE_INTEGER size{};
    Require(GetFileSizeEx(file, &size));
    return static_cast<std::uint64_t>(size.QuadPart);
}

}  // namespace

OutputFile OutputFile::Existing(const fs::path& path) {
    return OutputFile(Open(path, kSharedByAll, OPEN_EXISTING));
}

OutputFile OutputFile::Stream(const fs::path& path) {
    // The system would say that it denies the access.
    if (fs::is_directory(path))
        throw std::system_error(std::make_error_code(std::errc::is_a_directory));
    return OutputFile(Open(path, kSharedByAll, OPEN_EXISTING));
}

OutputFile OutputFile::New(const fs::path& path, fs::perms) {
    // That it is open tells RemoveUnlessOpen that somebody is at work; we may have to remove it
    // before it is closed.
    return OutputFile(Open(path, FILE_SHARE_DELETE, CREATE_NEW));
}

std::optional<OutputFile> OutputFile::Unnamed(const fs::path&, fs::perms) {
    return std::nullopt;
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, kClosed)) {}

OutputFile::~OutputFile() {
    if (descriptor_ != kClosed)
        CloseHandle(HandleOf(descriptor_));
}

fs::perms OutputFile::Permissions() const {
    return fs::perms(0666);  // access lists say more, and New has no use for these
}

bool OutputFile::HasOtherNames() const {
    BY_HANDLE_FILE_INFORMATION found{};
    Require(GetFileInformationByHandle(HandleOf(descriptor_), &found));
    return found.nNumberOfLinks > 1;
}

void OutputFile::Write(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t kMostAtOnce = std::size_t{64} << 20;
    while (!bytes.empty()) {
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        DWORD written = 0;
        Require(WriteFile(HandleOf(descriptor_), bytes.data(), wanted, &written, nullptr));
        bytes = bytes.subspan(written);
    }
}

void OutputFile::Reserve(std::uintmax_t size) {
    const HANDLE file = HandleOf(descriptor_);
    // Less than there is would cut it off.
    if (size <= SizeOf(file))
        return;
    FILE_ALLOCATION_INFO room{};
    room.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
    if (SetFileInformationByHandle(file, FileAllocationInfo, &room, sizeof room))
        return;
    // Not every file system can.
    if (const DWORD error = GetLastError(); error == ERROR_DISK_FULL)
        ThrowError(error);
}

void OutputFile::CutTo(std::uintmax_t size) {
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    Require(SetFilePointerEx(HandleOf(descriptor_), end, nullptr, FILE_BEGIN));
    Require(SetEndOfFile(HandleOf(descriptor_)));
}

void OutputFile::Flush() {
    if (FlushFileBuffers(HandleOf(descriptor_)))
        return;
    // Some file systems have nothing to flush to.
    const DWORD error = GetLastError();
    if (error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED)
        ThrowError(error);
}

void OutputFile::Close() {
    Require(CloseHandle(HandleOf(std::exchange(descriptor_, kClosed))));
}

void OutputFile::TakeAttributesOf(const OutputFile& other) {
    // TakeName brings the others along.
    constexpr DWORD kTaken = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    FILE_BASIC_INFO info{}, own{};
    if (!GetFileInformationByHandleEx(HandleOf(other.descriptor_), FileBasicInfo, &info,
                                      sizeof info))
        return;
    own.FileAttributes = FILE_ATTRIBUTE_ARCHIVE | (info.FileAttributes & kTaken);
    SetFileInformationByHandle(HandleOf(descriptor_), FileBasicInfo, &own, sizeof own);
}

bool OutputFile::LinkTo(const fs::path&) {
    return false;
}

bool IsStream(const fs::path& path) {
    // So begin the full names of devices and pipes, also that of NUL.
    wchar_t name[MAX_PATH];
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, name, nullptr);
    const bool isDevice =
        length < MAX_PATH && std::wstring_view(name, length).starts_with(L"\\\\.\\");
    return isDevice || fs::is_directory(path);
}

void RequireReplaceable(const fs::path& path) {
    const WindowsHandle file(
        CreateFileW(path.c_str(), DELETE, kSharedByAll, nullptr, OPEN_EXISTING, 0, nullptr));
    if (const DWORD error = GetLastError(); !file.IsOpen() && error == ERROR_SHARING_VIOLATION)
        ThrowError(error);
}

void TakeName(const fs::path& file, const fs::path& name) {
    constexpr DWORD kBestOfBoth = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    RequireReplaceable(name);
    if (ReplaceFileW(name.c_str(), file.c_str(), nullptr, kBestOfBoth, nullptr, nullptr))
        return;
    // There is none of that name, or the file system knows no such thing.
    Require(MoveFileExW(file.c_str(), name.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

void FlushFolder(const fs::path&) noexcept {}  // the system does by itself

}  // namespace orbelle::graphics::detail
