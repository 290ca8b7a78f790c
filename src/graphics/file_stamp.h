// What tells whether a file is still the one that was read or written.
#pragma once

#include <cstdint>
#include <filesystem>

namespace orbelle::graphics {

// Two stamps of one path differ when another program has written to the file or put another in its
// place. A default-made stamp is that of no file.
struct FileStamp {
    std::uint64_t Device = 0;
    std::uint64_t Inode = 0;
    std::uint64_t Size = 0;                // bytes
    std::int64_t ModifiedNanoseconds = 0;  // since 1970, UTC

    bool operator==(const FileStamp&) const = default;
};

// Of what the path leads to, links followed.
FileStamp StampOf(const std::filesystem::path& path) noexcept;

}  // namespace orbelle::graphics
