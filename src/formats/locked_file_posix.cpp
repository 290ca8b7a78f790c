#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "formats/locked_file.h"
#include "graphics/errors.h"
#include "graphics/system_words.h"

namespace orbelle::formats {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void ThrowError(const fs::path& path, const std::error_code& error) {
    throw graphics::FileError(path, graphics::WordsFor(error));
}

[[noreturn]] void ThrowLastError(const fs::path& path) {
    ThrowError(path, std::error_code(errno, std::generic_category()));
}

}  // namespace

int OwnProcess() {
    return ::getpid();
}

LockedFile::LockedFile(fs::path path, int descriptor)
    : path_(std::move(path)), descriptor_(descriptor) {}

LockedFile::~LockedFile() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

std::unique_ptr<LockedFile> LockedFile::Make(const fs::path& path) {
    std::unique_ptr<LockedFile> file(new LockedFile(
        path, ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR)));
    if (file->descriptor_ < 0)
        ThrowLastError(path);
    ::flock(file->descriptor_, LOCK_EX | LOCK_NB);
    return file;
}

std::unique_ptr<LockedFile> LockedFile::Find(const fs::path& path) {
    std::unique_ptr<LockedFile> file(
        new LockedFile(path, ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)));
    struct stat opened {
    }, named{};
    if (file->descriptor_ < 0 || ::flock(file->descriptor_, LOCK_EX | LOCK_NB) != 0 ||
        ::fstat(file->descriptor_, &opened) != 0 || ::stat(path.c_str(), &named) != 0 ||
        !S_ISREG(opened.st_mode) || opened.st_ino != named.st_ino)
        return nullptr;
    return file;
}

std::uint64_t LockedFile::Size() {
    struct stat found {};
    if (::fstat(descriptor_, &found) != 0)
        ThrowLastError(path_);
    return static_cast<std::uint64_t>(found.st_size);
}

std::size_t LockedFile::ReadAt(std::uint64_t from, std::span<std::uint8_t> to) {
    ssize_t read = 0;
    do {
        read = ::pread(descriptor_, to.data(), to.size(), static_cast<off_t>(from));
    } while (read < 0 && errno == EINTR);
    if (read < 0)
        ThrowLastError(path_);
    return static_cast<std::size_t>(read);
}

std::size_t LockedFile::WriteAt(std::uint64_t place, std::span<const std::uint8_t> bytes) {
    ssize_t written = 0;
    do {
        written = ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(place));
    } while (written < 0 && errno == EINTR);
    if (written < 0)
        ThrowLastError(path_);
    return static_cast<std::size_t>(written);
}

void LockedFile::Flush() {
    if (::fdatasync(descriptor_) != 0)
        ThrowLastError(path_);
}

void LockedFile::CutTo(std::uint64_t size) noexcept {
    [[maybe_unused]] const int ignored = ::ftruncate(descriptor_, static_cast<off_t>(size));
}

void LockedFile::TakeName(const fs::path& path, std::unique_ptr<LockedFile>&) {
    std::error_code error;
    fs::rename(path_, path, error);
    if (error)
        ThrowError(path, error);
}

}  // namespace orbelle::formats
