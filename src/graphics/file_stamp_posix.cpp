#include "graphics/file_stamp.h"

#include <sys/stat.h>

namespace orbelle::graphics {

FileStamp StampOf(const std::filesystem::path& path) noexcept {
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    struct stat found {};
    if (::stat(path.c_str(), &found) != 0)
        return {};
    return {found.st_dev, found.st_ino, static_cast<std::uint64_t>(found.st_size),
            found.st_mtim.tv_sec * kNanoseconds + found.st_mtim.tv_nsec};
}

}  // namespace orbelle::graphics
