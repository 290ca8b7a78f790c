// Waiting for files to change.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>

namespace orbelle::cli {

// Sees what is written to files, put in their place, comes and goes, also where folders and links
// on the way do. Where the system can't see that, it looks at least once a second.
class FileWatch {
public:
    FileWatch();
    ~FileWatch();
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    // These from here on, in place of those before. What happens later is seen by a Wait; to be
    // called again after one that saw something, since there may be other folders on the way.
    void Watch(std::span<const std::filesystem::path> files);

    // Until one of them may have changed, or the time is over: false.
    bool Wait(std::optional<std::chrono::milliseconds> limit = {});

private:
    class Eyes;  // what the system has for that

    std::unique_ptr<Eyes> eyes_;
};

}  // namespace orbelle::cli
