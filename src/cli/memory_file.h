// A file that is in memory alone, for what comes and goes by pipes.
#pragma once

#include <filesystem>

namespace orbelle::cli {

class MemoryFile {
public:
    // Empty. Throws Failure when the system has none to give.
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    // For reading and writing while it lives.
    const std::filesystem::path& Path() const { return path_; }

private:
    int descriptor_;
    std::filesystem::path path_;
};

// What begins such a path.
inline constexpr char kMemoryFiles[] = "/dev/fd/";

}  // namespace orbelle::cli
