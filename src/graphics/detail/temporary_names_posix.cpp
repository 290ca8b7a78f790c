#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <exception>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "graphics/detail/temporary_names.h"

namespace orbelle::graphics::detail {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::string_view kFront = ".orbelle-";
constexpr std::string_view kBack = ".tmp";
constexpr auto kPause = std::chrono::seconds(1);
constexpr std::size_t kMostFolders = 256;

// The iterators of std::filesystem end the program when memory runs out.
struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// None when the name is not of our pattern.
std::optional<pid_t> ProcessIn(std::string_view name) {
    if (!name.starts_with(kFront) || !name.ends_with(kBack) ||
        name.size() < kFront.size() + kBack.size())
        return std::nullopt;
    name.remove_prefix(kFront.size());
    name.remove_suffix(kBack.size());
    pid_t process = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
    const std::string_view random(end, static_cast<std::size_t>(name.data() + name.size() - end));
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (error != std::errc() || process <= 0 || random.size() < 2 || random[0] != '-' ||
        !std::ranges::all_of(random.substr(1), isDigit))
        return std::nullopt;
    return process;
}

// A process that can't be seen from here, in another container or on another machine, has a lock
// on its file.
bool IsLocked(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return true;
    const bool isLocked = flock(file, LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK;
    close(file);
    return isLocked;
}

// Reading a large folder for each of thousands of exports would take longer than these.
bool IsDue(const fs::path& folder) {
    static std::mutex mutex;
    static std::map<fs::path, Clock::time_point> last;
    const std::scoped_lock lock(mutex);
    const Clock::time_point now = Clock::now();
    if (last.size() >= kMostFolders)
        last.clear();
    const auto [found, isNew] = last.try_emplace(folder, now);
    if (!isNew && now - found->second < kPause)
        return false;
    found->second = now;
    return true;
}

}  // namespace

fs::path TemporaryNameIn(const fs::path& folder) {
    // The library's generator asks the processor what it can do, which takes long in a virtual one.
    std::uint64_t random = 0;
    if (getentropy(&random, sizeof random) != 0)
        random = static_cast<std::uint64_t>(Clock::now().time_since_epoch().count());
    return folder / (std::string(kFront) + std::to_string(getpid()) + '-' + std::to_string(random) +
                     std::string(kBack));
}

void RemoveStaleFiles(const fs::path& folder) noexcept {
    try {
        if (!IsDue(folder))
            return;
        const std::unique_ptr<DIR, CloseFolder> entries(opendir(folder.c_str()));
        while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
            const std::optional<pid_t> process = ProcessIn(entry->d_name);
            const bool isGone = process && kill(*process, 0) < 0 && errno == ESRCH;
            if (isGone && !IsLocked(folder / entry->d_name))
                unlink((folder / entry->d_name).c_str());
        }
    } catch (const std::exception&) {
        // The next save tries again.
    }
}

}  // namespace orbelle::graphics::detail
