#include <fcntl.h>
#include <io.h>

#include <cerrno>

#include "graphics/detail/open_file.h"
#include "graphics/windows_handle.h"

namespace orbelle::graphics::detail {

// The library's own functions let nobody rename or remove what they have open.
std::FILE* OpenForReading(const std::filesystem::path& path, std::error_code& error) {
    WindowsHandle handle(CreateFileW(path.c_str(), GENERIC_READ, kSharedByAll, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle.IsOpen()) {
        error.assign(static_cast<int>(GetLastError()), std::system_category());
        return nullptr;
    }
    const int descriptor =
        _open_osfhandle(reinterpret_cast<std::intptr_t>(handle.Get()), _O_RDONLY | _O_BINARY);
    if (descriptor >= 0)
        handle.Release();
    std::FILE* file = descriptor >= 0 ? _fdopen(descriptor, "rb") : nullptr;
    if (!file) {
        error.assign(errno, std::generic_category());
        if (descriptor >= 0)
            _close(descriptor);
    }
    return file;
}

}  // namespace orbelle::graphics::detail
