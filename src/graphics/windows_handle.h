// What the files for Windows have in common: handles that close themselves. Included by them alone.
#pragma once

#include <windows.h>

#include <utility>

namespace orbelle::graphics {

// Others may read, write, rename and remove the file meanwhile.
inline constexpr DWORD kSharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Of a file or a process; closed when this goes.
class WindowsHandle {
public:
    explicit WindowsHandle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
    WindowsHandle(WindowsHandle&& other) noexcept : handle_(other.Release()) {}
    WindowsHandle& operator=(WindowsHandle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~WindowsHandle() {
        if (IsOpen())
            CloseHandle(handle_);
    }

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    HANDLE Get() const { return handle_; }
    HANDLE Release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

private:
    HANDLE handle_;
};

}  // namespace orbelle::graphics
