#include "graphics/file_io.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <random>
#include <system_error>

#include "graphics/byte_source.h"
#include "graphics/errors.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;

// As many as Linux follows.
constexpr int kMaxLinks = 40;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void ThrowSystemError(const fs::path& path, std::errc reason) {
    throw FileError(path, std::make_error_code(reason).message());
}

[[noreturn]] void ThrowLastError(const fs::path& path) {
    ThrowSystemError(path, static_cast<std::errc>(errno));
}

// That a file is missing is known, too. What can't be asked about must not be taken for missing.
fs::file_status RequireKnown(const fs::file_status& status, const std::error_code& error,
                             const fs::path& name) {
    if (!fs::status_known(status))
        throw FileError(name, error.message());
    return status;
}

// `name` is the path that the user knows, for the message.
File Open(const fs::path& path, const char* mode, const fs::path& name) {
    File file(std::fopen(path.string().c_str(), mode));
    if (!file)
        ThrowLastError(name);
    return file;
}

void WriteAndClose(File file, std::span<const std::uint8_t> bytes, const fs::path& name) {
    // A full disk may show only when the last bytes are handed over, at closing.
    const bool written =
        bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const int writeError = errno;
    const bool closed = std::fclose(file.release()) == 0;
    if (!written)
        errno = writeError;
    if (!written || !closed)
        ThrowLastError(name);
}

// What a chain of links ends at, which need not exist.
fs::path FollowLinks(const fs::path& path) {
    fs::path target = path;
    std::error_code error;
    for (int links = 0;
         fs::is_symlink(RequireKnown(fs::symlink_status(target, error), error, path)); ++links) {
        if (links == kMaxLinks)
            ThrowSystemError(path, std::errc::too_many_symbolic_link_levels);
        const fs::path next = fs::read_symlink(target, error);
        if (error)
            throw FileError(path, error.message());
        target = target.parent_path() / next;
    }
    return target;
}

fs::path UnusedNameBeside(const fs::path& target) {
    std::random_device random;
    return target.parent_path() /
           (".orbelle-" + std::to_string(random()) + std::to_string(random()) + ".tmp");
}

// Takes the file away again unless it was handed over.
struct TemporaryFile {
    fs::path Path;
    bool HandedOver = false;

    ~TemporaryFile() {
        std::error_code ignored;
        if (!HandedOver)
            fs::remove(Path, ignored);
    }
};

}  // namespace

std::vector<std::uint8_t> ReadFile(const fs::path& path) {
    const FileSource file(path);
    std::vector<std::uint8_t> bytes(file.Size());
    bytes.resize(file.ReadAt(0, bytes));
    file.RequireWasRead();
    return bytes;
}

void WriteFile(const fs::path& path, std::span<const std::uint8_t> bytes) {
    const fs::path target = FollowLinks(path);
    std::error_code error;
    const fs::file_status status = RequireKnown(fs::status(target, error), error, path);
    if (fs::exists(status)) {
        // Taking a file's name needs no right to write to the file itself; ask for it all the same.
        File existing = Open(target, "r+b", path);
        if (!fs::is_regular_file(status))
            return WriteAndClose(std::move(existing), bytes, path);
    }

    TemporaryFile temporary{UnusedNameBeside(target)};
    File file = Open(temporary.Path, "wbx", path);
    if (fs::exists(status)) {
        fs::permissions(temporary.Path, status.permissions(), error);
        if (error)
            throw FileError(path, error.message());
    }
    WriteAndClose(std::move(file), bytes, path);
    fs::rename(temporary.Path, target, error);
    if (error)
        throw FileError(path, error.message());
    temporary.HandedOver = true;
}

}  // namespace orbelle::graphics
