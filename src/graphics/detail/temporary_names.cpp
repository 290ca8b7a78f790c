#include "graphics/detail/temporary_names.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "graphics/detail/temporary_files.h"
#include "graphics/path_text.h"

namespace orbelle::graphics::detail {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::string_view kFront = ".orbelle-";
constexpr std::string_view kBack = ".tmp";
constexpr auto kPause = std::chrono::seconds(1);
constexpr std::size_t kMostFolders = 256;

// None when the name is not of our pattern.
std::optional<int> ProcessIn(std::string_view name) {
    if (!name.starts_with(kFront) || !name.ends_with(kBack) ||
        name.size() < kFront.size() + kBack.size())
        return std::nullopt;
    name.remove_prefix(kFront.size());
    name.remove_suffix(kBack.size());
    int process = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
    const std::string_view random(end, static_cast<std::size_t>(name.data() + name.size() - end));
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (error != std::errc() || process <= 0 || random.size() < 2 || random[0] != '-' ||
        !std::ranges::all_of(random.substr(1), isDigit))
        return std::nullopt;
    return process;
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

// Not by the library's generator: it asks the processor what it can do, which takes long in a
// virtual one.
std::uint64_t RandomNumber() {
    return RandomOfSystem().value_or(
        static_cast<std::uint64_t>(Clock::now().time_since_epoch().count()));
}

}  // namespace

fs::path TemporaryNameIn(const fs::path& folder) {
    return folder / PathOfUtf8(std::string(kFront) + std::to_string(OwnProcess()) + '-' +
                               std::to_string(RandomNumber()) + std::string(kBack));
}

void RemoveStaleFiles(const fs::path& folder) noexcept {
    try {
        if (!IsDue(folder))
            return;
        for (const std::string& name : NamesIn(folder, kFront, kBack)) {
            const std::optional<int> process = ProcessIn(name);
            if (process && IsGone(*process))
                RemoveUnlessOpen(folder / PathOfUtf8(name));
        }
    } catch (const std::exception&) {
        // The next save tries again.
    }
}

}  // namespace orbelle::graphics::detail
