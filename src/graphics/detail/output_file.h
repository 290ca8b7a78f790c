// Files that are written: what std::filesystem has no words for.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

namespace orbelle::graphics::detail {

// A file that is open for writing, closed when this goes. What the system refuses is thrown as
// std::system_error; a signal that comes in between is none of that.
class OutputFile {
public:
    // A file that is there, as it stands: nothing is cut off.
    static OutputFile Existing(const std::filesystem::path& path);
    // A pipe, a device or an open file of this program, whose end is written to. A FIFO waits for
    // its reader.
    static OutputFile Stream(const std::filesystem::path& path);
    // A new file, which must not be there yet.
    static OutputFile New(const std::filesystem::path& path, std::filesystem::perms permissions);
    // A new file on the folder's file system, without a name: it is gone when it is closed before
    // LinkTo. None where there is no such thing.
    static std::optional<OutputFile> Unnamed(const std::filesystem::path& folder,
                                             std::filesystem::perms permissions);

    OutputFile(OutputFile&& other) noexcept;
    ~OutputFile();

    std::filesystem::perms Permissions() const;
    bool HasOtherNames() const;

    void Write(std::span<const std::uint8_t> bytes);
    // Room on the disk for so many bytes in all. The size stays as it is.
    void Reserve(std::uintmax_t size);
    void CutTo(std::uintmax_t size);
    // Returns when the bytes are on the disk.
    void Flush();
    void Close();

    // Owner, group, permissions, access lists and other extended attributes, as far as the system
    // lets us set them.
    void TakeAttributesOf(const OutputFile& other);
    // Gives an unnamed file its name. False when that is taken, or can't be done.
    bool LinkTo(const std::filesystem::path& path);

private:
    explicit OutputFile(int descriptor) : descriptor_(descriptor) {}

    int descriptor_;
};

// What has this name, links followed, is no file, which another one could replace: it is a pipe, a
// device or a folder. Throws std::system_error when that can't be told.
bool IsStream(const std::filesystem::path& path);

// Throws std::system_error when the file can't be replaced since another program has it open, which
// keeps nobody from it on most systems.
void RequireReplaceable(const std::filesystem::path& path);

// Gives a file that is closed the other name, in one step when another file has it, which then is
// no more. Where TakeAttributesOf can't, this keeps what the system knows of that one. Throws
// std::system_error, with both files as they were.
void TakeName(const std::filesystem::path& file, const std::filesystem::path& name);

// Returns when the names in the folder are on the disk, as far as the system can tell: once a file
// has its new name, nobody can do anything about a failure.
void FlushFolder(const std::filesystem::path& folder) noexcept;

}  // namespace orbelle::graphics::detail
