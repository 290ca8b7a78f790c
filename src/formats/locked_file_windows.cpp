#include <windows.h>

#include <algorithm>
#include <system_error>
#include <utility>

#include "formats/locked_file.h"
#include "graphics/errors.h"
#include "graphics/file_stamp.h"
#include "graphics/system_words.h"
#include "graphics/windows_handle.h"

namespace orbelle::formats {

namespace fs = std::filesystem;

namespace {

// What is locked is a byte far behind any end: the others may still read, a copy be made.
constexpr DWORD kLockPlace = 0x4000'0000;  // the upper half of its place
constexpr std::size_t kMostAtOnce = std::size_t{64} << 20;

HANDLE HandleOf(int descriptor) {
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(descriptor));
}

// The system's handles fit into an int; that of no file becomes -1.
int Open(const fs::path& path, DWORD access, DWORD disposition) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(
        CreateFileW(path.c_str(), access, graphics::kSharedByAll, nullptr, disposition,
                    FILE_ATTRIBUTE_NORMAL, nullptr)));
}

bool Lock(int descriptor) {
    OVERLAPPED place{};
    place.OffsetHigh = kLockPlace;
    return LockFileEx(HandleOf(descriptor), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0,
                      1, 0, &place) != 0;
}

OVERLAPPED PlaceOf(std::uint64_t offset) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

[[noreturn]] void ThrowLastError(const fs::path& path) {
    throw graphics::FileError(path, graphics::WordsFor(std::error_code(
                                        static_cast<int>(GetLastError()), std::system_category())));
}

}  // namespace

int OwnProcess() {
    return static_cast<int>(GetCurrentProcessId());
}

LockedFile::LockedFile(fs::path path, int descriptor)
    : path_(std::move(path)), descriptor_(descriptor) {}

LockedFile::~LockedFile() {
    if (descriptor_ != -1)
        CloseHandle(HandleOf(descriptor_));
}

std::unique_ptr<LockedFile> LockedFile::Make(const fs::path& path) {
    std::unique_ptr<LockedFile> file(
        new LockedFile(path, Open(path, GENERIC_READ | GENERIC_WRITE, CREATE_NEW)));
    if (file->descriptor_ == -1)
        ThrowLastError(path);
    Lock(file->descriptor_);
    return file;
}

std::unique_ptr<LockedFile> LockedFile::Find(const fs::path& path) {
    std::unique_ptr<LockedFile> file(new LockedFile(path, Open(path, GENERIC_READ, OPEN_EXISTING)));
    if (file->descriptor_ == -1 || !Lock(file->descriptor_))
        return nullptr;
    // Who had it locked may have removed or replaced it meanwhile.
    const graphics::FileStamp named = graphics::StampOf(path);
    BY_HANDLE_FILE_INFORMATION opened{};
    if (!GetFileInformationByHandle(HandleOf(file->descriptor_), &opened) ||
        named.Inode != (std::uint64_t{opened.nFileIndexHigh} << 32 | opened.nFileIndexLow))
        return nullptr;
    return file;
}

std::uint64_t LockedFile::Size() {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(HandleOf(descriptor_), &size))
        ThrowLastError(path_);
    return static_cast<std::uint64_t>(size.QuadPart);
}

std::size_t LockedFile::ReadAt(std::uint64_t from, std::span<std::uint8_t> to) {
    OVERLAPPED place = PlaceOf(from);
    DWORD read = 0;
    if (!ReadFile(HandleOf(descriptor_), to.data(),
                  static_cast<DWORD>(std::min(to.size(), kMostAtOnce)), &read, &place) &&
        GetLastError() != ERROR_HANDLE_EOF)
        ThrowLastError(path_);
    return read;
}

std::size_t LockedFile::WriteAt(std::uint64_t place, std::span<const std::uint8_t> bytes) {
    OVERLAPPED from = PlaceOf(place);
    DWORD written = 0;
    if (!WriteFile(HandleOf(descriptor_), bytes.data(),
                   static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce)), &written, &from))
        ThrowLastError(path_);
    return written;
}

void LockedFile::Flush() {
    if (!FlushFileBuffers(HandleOf(descriptor_)))
        ThrowLastError(path_);
}

void LockedFile::CutTo(std::uint64_t size) noexcept {
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    if (SetFilePointerEx(HandleOf(descriptor_), end, nullptr, FILE_BEGIN))
        SetEndOfFile(HandleOf(descriptor_));
}

void LockedFile::TakeName(const fs::path& path, std::unique_ptr<LockedFile>& old) {
    old.reset();
    if (!MoveFileExW(path_.c_str(), path.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        ThrowLastError(path);
}

}  // namespace orbelle::formats
