#include "graphics/byte_source.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <system_error>
#include <utility>

#include "graphics/detail/open_file.h"
#include "graphics/errors.h"
#include "graphics/system_words.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kPieceBytes = std::uint64_t{64} << 10;

std::string Words(int error) {
    return std::make_error_code(static_cast<std::errc>(error)).message();
}

// How many of `wanted` bytes from `place` on a source of that size has.
std::size_t There(std::uint64_t size, std::uint64_t place, std::size_t wanted) {
    return place >= size ? 0
                         : static_cast<std::size_t>(std::min<std::uint64_t>(size - place, wanted));
}

}  // namespace

std::size_t MemorySource::ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept {
    const std::size_t count = There(size_, place, to.size());
    if (count > 0)
        std::memcpy(to.data(), bytes_.data() + place, count);
    return count;
}

FileSource::FileSource(const fs::path& path) : ByteSource(0), path_(path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    // That a file is missing is known, too, and told when it is opened.
    if (!fs::status_known(status))
        throw FileError(path, WordsFor(error));
    if (fs::is_directory(status))
        throw FileError(path, Words(EISDIR));
    // Opening a pipe would wait for its writer.
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw FileError(path, "not a regular file");
    file_.reset(detail::OpenForReading(path, error));
    if (!file_)
        throw FileError(path, WordsFor(error));
    // Pieces are large enough.
    std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    const std::uintmax_t size = fs::file_size(path, error);
    if (error)
        throw FileError(path, WordsFor(error));
    if (size > kMaxFileBytes)
        throw FileError(path, "larger than " + std::to_string(kMaxFileBytes >> 20) + " MiB");
    size_ = size;
}

std::size_t FileSource::ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept {
    const std::size_t count = There(size_, place, to.size());
    if (count == 0)
        return 0;
    const std::lock_guard lock(mutex_);
    std::size_t taken = 0;
    // A place within kMaxFileBytes fits into a long everywhere.
    if (std::fseek(file_.get(), static_cast<long>(place), SEEK_SET) == 0)
        taken = std::fread(to.data(), 1, count, file_.get());
    if (taken < count && std::ferror(file_.get()) && error_ == 0)
        error_ = errno ? errno : EIO;
    return taken;
}

void FileSource::RequireWasRead() const {
    const std::lock_guard lock(mutex_);
    if (error_ != 0)
        throw FileError(path_, Words(error_));
}

PartOfSource::PartOfSource(const ByteSource& whole, std::uint64_t place, std::uint64_t size)
    : ByteSource(place >= whole.Size() ? 0 : std::min(size, whole.Size() - place)),
      whole_(&whole),
      place_(place) {}

std::size_t PartOfSource::ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept {
    const std::size_t count = There(size_, place, to.size());
    return count == 0 ? 0 : whole_->ReadAt(place_ + place, to.first(count));
}

ByteStream::ByteStream(const ByteSource& source)
    : source_(source), buffer_(static_cast<std::size_t>(std::min(kPieceBytes, source.Size()))) {}

std::span<const std::uint8_t> ByteStream::NextPiece() noexcept {
    if (left_.empty()) {
        left_ = {buffer_.data(), source_.ReadAt(next_, buffer_)};
        next_ += left_.size();
    }
    return std::exchange(left_, {});
}

std::size_t ByteStream::Read(std::span<std::uint8_t> to) noexcept {
    std::size_t done = 0;
    while (done < to.size()) {
        const std::span<const std::uint8_t> piece = NextPiece();
        if (piece.empty())
            break;
        const std::size_t taken = std::min(piece.size(), to.size() - done);
        std::memcpy(to.data() + done, piece.data(), taken);
        done += taken;
        left_ = piece.subspan(taken);
    }
    return done;
}

void ByteStream::Skip(std::uint64_t count) noexcept {
    const std::uint64_t buffered = std::min<std::uint64_t>(count, left_.size());
    left_ = left_.subspan(static_cast<std::size_t>(buffered));
    next_ += count - buffered;
}

}  // namespace orbelle::graphics
