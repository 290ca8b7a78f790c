#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <memory>

#include "graphics/detail/temporary_files.h"

namespace orbelle::graphics::detail {
namespace {

namespace fs = std::filesystem;

// The iterators of std::filesystem end the program when memory runs out.
struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

bool IsLocked(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return true;
    const bool isLocked = flock(file, LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK;
    close(file);
    return isLocked;
}

}  // namespace

int OwnProcess() {
    return getpid();
}

bool IsGone(int process) {
    return kill(process, 0) < 0 && errno == ESRCH;
}

std::optional<std::uint64_t> RandomOfSystem() {
    std::uint64_t random = 0;
    return getentropy(&random, sizeof random) == 0 ? std::optional(random) : std::nullopt;
}

std::vector<std::string> NamesIn(const fs::path& folder, std::string_view front,
                                 std::string_view back) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, CloseFolder> entries(opendir(folder.c_str()));
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name.starts_with(front) && name.ends_with(back))
            names.emplace_back(name);
    }
    return names;
}

void RemoveUnlessOpen(const fs::path& path) {
    if (!IsLocked(path))
        unlink(path.c_str());
}

}  // namespace orbelle::graphics::detail
