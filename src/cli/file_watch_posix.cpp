#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "cli/file_watch.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

constexpr milliseconds kBlindLook{1000};

// As many as Linux follows.
constexpr int kMaxLinks = 40;

// Of the folder itself.
constexpr std::uint32_t kOwnEvents = IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED | IN_UNMOUNT;
// Of a name in it that leads on, and of one that is a file.
constexpr std::uint32_t kNameEvents =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t kFileEvents = kNameEvents | IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB;

}  // namespace

class FileWatch::Eyes {
public:
    Eyes() : descriptor_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {}
    ~Eyes() {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    Eyes(const Eyes&) = delete;
    Eyes& operator=(const Eyes&) = delete;

    void Watch(std::span<const fs::path> files);
    bool Wait(std::optional<milliseconds> limit);

private:
    void WatchOnTheWay(const fs::path& file);
    void WatchName(const fs::path& folder, const std::string& name, bool isFile);
    bool TakeEvents();

    int descriptor_;
    std::map<int, std::set<std::string>> names_;  // of interest, by the watch of their folder
    std::set<std::string> folders_;               // on the way that are no links
    bool isBlind_ = false;                        // somewhere
};

void FileWatch::Eyes::Watch(std::span<const fs::path> files) {
    const auto before = std::exchange(names_, {});
    folders_.clear();
    isBlind_ = descriptor_ < 0;
    for (const fs::path& file : files)
        WatchOnTheWay(file);
    for (const auto& [folder, names] : before) {
        if (!names_.contains(folder))
            inotify_rm_watch(descriptor_, folder);
    }
}

// Each folder is watched before what is in it is looked at, so that nothing happens unseen.
void FileWatch::Eyes::WatchOnTheWay(const fs::path& file) {
    fs::path folder = file.is_absolute() ? file.root_path() : ".";
    const fs::path relative = file.relative_path();
    std::deque<fs::path> rest(relative.begin(), relative.end());
    for (int links = 0; !rest.empty();) {
        const fs::path name = rest.front();
        rest.pop_front();
        fs::path path = folder / name;
        const bool isKnown = !rest.empty() && folders_.contains(path.string());
        if (!isKnown && !name.empty() && name != "." && name != "..") {
            WatchName(folder, name, rest.empty());
            std::error_code error;
            const fs::path target = fs::read_symlink(path, error);
            if (!error && ++links <= kMaxLinks) {
                if (target.is_absolute())
                    folder = target.root_path();
                const fs::path way = target.relative_path();
                rest.insert(rest.begin(), way.begin(), way.end());
                continue;
            }
            if (!rest.empty())
                folders_.insert(path.string());
        }
        folder = std::move(path);
    }
}

void FileWatch::Eyes::WatchName(const fs::path& folder, const std::string& name, bool isFile) {
    const std::uint32_t events = isFile ? kFileEvents : kNameEvents;
    const int watch =
        inotify_add_watch(descriptor_, folder.c_str(), events | IN_ONLYDIR | IN_MASK_ADD);
    if (watch >= 0)
        names_[watch].insert(name);
    else if (errno != ENOENT && errno != ENOTDIR)
        isBlind_ = true;
}

// True when one is about the names of interest.
bool FileWatch::Eyes::TakeEvents() {
    alignas(inotify_event) char buffer[1 << 14];
    bool isAny = false;
    for (ssize_t size = 0; (size = read(descriptor_, buffer, sizeof buffer)) > 0;) {
        for (const char* at = buffer; at < buffer + size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            const auto names = names_.find(event->wd);
            const bool isKnown = names != names_.end();
            isAny = isAny || (event->mask & IN_Q_OVERFLOW) != 0 ||
                    (isKnown && (event->mask & kOwnEvents) != 0) ||
                    (isKnown && event->len > 0 && names->second.contains(event->name));
            at += sizeof(inotify_event) + event->len;
        }
    }
    return isAny;
}

bool FileWatch::Eyes::Wait(std::optional<milliseconds> limit) {
    using Clock = std::chrono::steady_clock;
    const bool hasEnd = limit || isBlind_;
    const Clock::time_point end = Clock::now() + limit.value_or(kBlindLook);
    while (true) {
        const auto left = std::chrono::ceil<milliseconds>(end - Clock::now());
        pollfd waiting{descriptor_, POLLIN, 0};
        const int timeout = static_cast<int>(std::max(left, milliseconds(0)).count());
        if (poll(&waiting, 1, hasEnd ? timeout : -1) > 0 && TakeEvents())
            return true;
        if (hasEnd && Clock::now() >= end)
            return !limit;
    }
}

FileWatch::FileWatch() : eyes_(std::make_unique<Eyes>()) {}

FileWatch::~FileWatch() = default;

void FileWatch::Watch(std::span<const fs::path> files) {
    eyes_->Watch(files);
}

bool FileWatch::Wait(std::optional<milliseconds> limit) {
    return eyes_->Wait(limit);
}

}  // namespace orbelle::cli
