#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "graphics/detail/output_file.h"

#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace orbelle::graphics::detail {
namespace {

namespace fs = std::filesystem;

constexpr int kClosed = -1;
constexpr int kFlags = O_WRONLY | O_CLOEXEC | O_NOCTTY;

// Until it was not a signal that stopped it.
template <typename Call>
auto Finished(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

[[noreturn]] void ThrowLastError() {
    throw std::system_error(errno, std::generic_category());
}

int Required(int result) {
    if (result < 0)
        ThrowLastError();
    return result;
}

struct stat StatusOf(int descriptor) {
    struct stat status {};
    Required(fstat(descriptor, &status));
    return status;
}

// Tells RemoveStaleFiles of a process that can't see ours that somebody is at work. Where there
// are no locks it goes without.
void Lock(int descriptor) {
    flock(descriptor, LOCK_EX | LOCK_NB);
}

#ifdef __linux__

// One after the other, each with its final 0.
std::string AttributeNames(int descriptor) {
    std::string names(
        static_cast<std::size_t>(std::max<ssize_t>(0, flistxattr(descriptor, nullptr, 0))), '\0');
    const ssize_t size = names.empty() ? 0 : flistxattr(descriptor, names.data(), names.size());
    names.resize(static_cast<std::size_t>(std::max<ssize_t>(0, size)));
    return names;
}

std::vector<std::string> AttributesOf(int descriptor) {
    const std::string names = AttributeNames(descriptor);
    std::vector<std::string> list;
    for (std::size_t at = 0; at < names.size(); at += list.back().size() + 1)
        list.emplace_back(names.c_str() + at);
    return list;
}

void CopyExtendedAttributes(int from, int to) {
    const std::vector<std::string> wanted = AttributesOf(from);
    // A folder may hand access lists down to new files.
    for (const std::string& name : AttributesOf(to)) {
        if (std::ranges::find(wanted, name) == wanted.end())
            fremovexattr(to, name.c_str());
    }
    for (const std::string& name : wanted) {
        std::string value(static_cast<std::size_t>(
                              std::max<ssize_t>(0, fgetxattr(from, name.c_str(), nullptr, 0))),
                          '\0');
        const ssize_t size = fgetxattr(from, name.c_str(), value.data(), value.size());
        if (size >= 0)
            fsetxattr(to, name.c_str(), value.data(), static_cast<std::size_t>(size), 0);
    }
}

#else

void CopyExtendedAttributes(int, int) {}

#endif

}  // namespace

OutputFile OutputFile::Existing(const fs::path& path) {
    return OutputFile(Required(Finished([&] { return open(path.c_str(), kFlags); })));
}

OutputFile OutputFile::Stream(const fs::path& path) {
    return OutputFile(Required(Finished([&] { return open(path.c_str(), kFlags | O_APPEND); })));
}

OutputFile OutputFile::New(const fs::path& path, fs::perms permissions) {
    OutputFile file(Required(Finished([&] {
        return open(path.c_str(), kFlags | O_CREAT | O_EXCL, static_cast<mode_t>(permissions));
    })));
    Lock(file.descriptor_);
    return file;
}

std::optional<OutputFile> OutputFile::Unnamed([[maybe_unused]] const fs::path& folder,
                                              [[maybe_unused]] fs::perms permissions) {
#ifdef O_TMPFILE
    const int descriptor = Finished(
        [&] { return open(folder.c_str(), kFlags | O_TMPFILE, static_cast<mode_t>(permissions)); });
    if (descriptor >= 0) {
        Lock(descriptor);
        return OutputFile(descriptor);
    }
#endif
    return std::nullopt;
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, kClosed)) {}

OutputFile::~OutputFile() {
    if (descriptor_ != kClosed)
        close(descriptor_);
}

fs::perms OutputFile::Permissions() const {
    return static_cast<fs::perms>(StatusOf(descriptor_).st_mode) & fs::perms(0777);
}

bool OutputFile::HasOtherNames() const {
    return StatusOf(descriptor_).st_nlink > 1;
}

void OutputFile::Write(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            Finished([&] { return write(descriptor_, bytes.data(), bytes.size()); });
        if (written < 0)
            ThrowLastError();
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
}

void OutputFile::Reserve([[maybe_unused]] std::uintmax_t size) {
#ifdef __linux__
    // Not every file system can; those that can tell here that the disk is full.
    const int result = size == 0 ? 0 : Finished([&] {
        return fallocate(descriptor_, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size));
    });
    if (result < 0 && (errno == ENOSPC || errno == EDQUOT || errno == EFBIG))
        ThrowLastError();
#endif
}

void OutputFile::CutTo(std::uintmax_t size) {
    Required(Finished([&] { return ftruncate(descriptor_, static_cast<off_t>(size)); }));
}

void OutputFile::Flush() {
    const int result = Finished([&] { return fsync(descriptor_); });
    // Some file systems have nothing to flush to.
    if (result < 0 && errno != EINVAL && errno != ENOTSUP)
        ThrowLastError();
}

void OutputFile::Close() {
    // After a signal the descriptor is closed all the same.
    if (close(std::exchange(descriptor_, kClosed)) < 0 && errno != EINTR)
        ThrowLastError();
}

void OutputFile::TakeAttributesOf(const OutputFile& other) {
    const struct stat status = StatusOf(other.descriptor_);
    const auto keepOwner = static_cast<uid_t>(-1);
    mode_t mode = status.st_mode & 07777;
    // Only the system's administrator gives files away; the group may be one of ours.
    if (fchown(descriptor_, status.st_uid, status.st_gid) < 0) {
        [[maybe_unused]] const int refused = fchown(descriptor_, keepOwner, status.st_gid);
        mode &= 0777;  // no rights of somebody else's for who runs it
    }
    fchmod(descriptor_, mode);
    CopyExtendedAttributes(other.descriptor_, descriptor_);
}

bool OutputFile::LinkTo(const fs::path& path) {
    const std::string own = "/proc/self/fd/" + std::to_string(descriptor_);
    return Finished([&] {
               return linkat(AT_FDCWD, own.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
           }) == 0;
}

bool IsStream(const fs::path& path) {
    const fs::file_status status = fs::status(path);
    return fs::exists(status) && !fs::is_regular_file(status);
}

void RequireReplaceable(const fs::path&) {}

void TakeName(const fs::path& file, const fs::path& name) {
    fs::rename(file, name);
}

void FlushFolder(const fs::path& folder) noexcept {
    const int descriptor =
        Finished([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (descriptor < 0)
        return;
    Finished([&] { return fsync(descriptor); });
    close(descriptor);
}

}  // namespace orbelle::graphics::detail
