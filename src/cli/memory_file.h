// A file of this run alone, for what comes and goes by pipes.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace orbelle::cli {

// In memory where the system has such files, else among the temporary ones.
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
    struct Keeper;

    std::filesystem::path path_;
    std::unique_ptr<Keeper> keeper_;
};

// Whether a message begins with such a path.
bool IsOfMemoryFile(std::string_view message);

}  // namespace orbelle::cli
