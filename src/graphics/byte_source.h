// Bytes that are read piece by piece, so that a large file never stands in memory as a whole.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <mutex>
#include <span>
#include <type_traits>
#include <vector>

namespace orbelle::graphics {

// No file that we read is larger: 512 MiB.
inline constexpr std::uintmax_t kMaxFileBytes = std::uintmax_t{512} << 20;

class ByteSource {
public:
    virtual ~ByteSource() = default;

    std::uint64_t Size() const { return size_; }

    // Copies what stands from `place` on and tells how many bytes that were: fewer than asked for
    // where the source ends or can't be read. Several threads may read at once.
    virtual std::size_t ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept = 0;

    // Little-endian; bytes that are not there read as zero.
    template <typename Number>
    Number NumberAt(std::uint64_t place) const noexcept {
        static_assert(std::is_arithmetic_v<Number>);
        Number value = 0;
        ReadAt(place, {reinterpret_cast<std::uint8_t*>(&value), sizeof value});
        return value;
    }

protected:
    explicit ByteSource(std::uint64_t size) : size_(size) {}
    ByteSource(const ByteSource&) = default;
    ByteSource& operator=(const ByteSource&) = default;

    std::uint64_t size_;
};

// Bytes that someone else keeps.
class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::span<const std::uint8_t> bytes)
        : ByteSource(bytes.size()), bytes_(bytes) {}

    std::size_t ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept override;

private:
    std::span<const std::uint8_t> bytes_;
};

class FileSource : public ByteSource {
public:
    // Throws FileError when the file is missing, unreadable, no regular file or above
    // kMaxFileBytes.
    explicit FileSource(const std::filesystem::path& path);
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;

    std::size_t ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept override;

    // Throws FileError when the system refused a ReadAt. To be called after the reading: what came
    // of it, also a complaint about its end, is worth nothing then.
    void RequireWasRead() const;

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::filesystem::path path_;
    std::unique_ptr<std::FILE, CloseFile> file_;
    mutable std::mutex mutex_;  // for what follows and the place in the file
    mutable int error_ = 0;     // errno of the first refusal
};

// A part of a source that lives longer; what reaches beyond its end is cut off.
class PartOfSource : public ByteSource {
public:
    PartOfSource(const ByteSource& whole, std::uint64_t place, std::uint64_t size);

    std::size_t ReadAt(std::uint64_t place, std::span<std::uint8_t> to) const noexcept override;

private:
    const ByteSource* whole_;
    std::uint64_t place_;
};

// Goes through a source from its beginning, a piece at a time.
class ByteStream {
public:
    explicit ByteStream(const ByteSource& source);

    // Gives fewer bytes than asked for only at the end.
    std::size_t Read(std::span<std::uint8_t> to) noexcept;

    // Some bytes, as long as nothing else is asked of the stream; none at the end.
    std::span<const std::uint8_t> NextPiece() noexcept;

    void Skip(std::uint64_t count) noexcept;

private:
    const ByteSource& source_;
    std::uint64_t next_ = 0;  // of what the buffer will hold next
    std::vector<std::uint8_t> buffer_;
    std::span<const std::uint8_t> left_;
};

}  // namespace orbelle::graphics
