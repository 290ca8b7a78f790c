#include <algorithm>
#include <map>
#include <thread>

#include "cli/file_watch.h"
#include "graphics/file_stamp.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using graphics::StampOf;
using std::chrono::milliseconds;

constexpr milliseconds kLook{200};

}  // namespace

// What the system tells of folders leaves out links and other machines' files; a look at a file
// costs little and is always right.
class FileWatch::Eyes {
public:
    void Watch(std::span<const fs::path> files) {
        seen_.clear();
        for (const fs::path& file : files)
            seen_.emplace(file, StampOf(file));
    }

    bool Look() {
        bool isAny = false;
        for (auto& [file, stamp] : seen_) {
            const graphics::FileStamp now = StampOf(file);
            isAny = isAny || now != stamp;
            stamp = now;
        }
        return isAny;
    }

private:
    std::map<fs::path, graphics::FileStamp> seen_;
};

FileWatch::FileWatch() : eyes_(std::make_unique<Eyes>()) {}

FileWatch::~FileWatch() = default;

void FileWatch::Watch(std::span<const fs::path> files) {
    eyes_->Watch(files);
}

bool FileWatch::Wait(std::optional<milliseconds> limit) {
    const Clock::time_point end = Clock::now() + limit.value_or(milliseconds(0));
    while (!eyes_->Look()) {
        const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
        if (limit && left.count() <= 0)
            return false;
        std::this_thread::sleep_for(limit ? std::min(left, kLook) : kLook);
    }
    return true;
}

}  // namespace orbelle::cli
