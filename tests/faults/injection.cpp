#include "faults/injection.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <new>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ORBELLE_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ORBELLE_SANITIZED 1
#endif
#endif
#if defined(__GLIBC__) && !defined(ORBELLE_SANITIZED)
#define ORBELLE_OWN_MALLOC 1
#endif

namespace orbelle::testing {
namespace {

std::atomic<bool> armed = false;
Fault armedFault = Fault::New;
Extent armedExtent = Extent::One;
std::atomic<long> left = 0;  // until the first that fails
std::atomic<bool> hasFailed = false;
std::atomic<bool> hasUnnamedFiles = true;

bool ShouldFail(Fault fault) {
    if (!armed || armedFault != fault)
        return false;
    const long now = --left;
    const bool fails = now == 0 || (now < 0 && armedExtent == Extent::AllFrom);
    if (fails)
        hasFailed = true;
    return fails;
}

}  // namespace

bool CanFail([[maybe_unused]] Fault fault) {
#ifdef ORBELLE_OWN_MALLOC
    return true;
#else
    return fault != Fault::Malloc;
#endif
}

Injection::Injection(Fault fault, Extent extent, long n) {
    armedFault = fault;
    armedExtent = extent;
    left = n;
    hasFailed = false;
    armed = true;
}

Injection::~Injection() {
    armed = false;
}

bool Injection::HasFailedOne() const {
    return hasFailed;
}

NoUnnamedFiles::NoUnnamedFiles() {
    hasUnnamedFiles = false;
}

NoUnnamedFiles::~NoUnnamedFiles() {
    hasUnnamedFiles = true;
}

namespace {

void* AllocateOrNull(std::size_t size) noexcept {
    return ShouldFail(Fault::New) ? nullptr : std::malloc(size ? size : 1);
}

void* AllocateOrNull(std::size_t size, std::align_val_t alignment) noexcept {
    const auto step = static_cast<std::size_t>(alignment);
    // A failing malloc counts for these, too.
    if (ShouldFail(Fault::New) || ShouldFail(Fault::Malloc))
        return nullptr;
    return std::aligned_alloc(step, (size + step) / step * step);
}

template <typename... Alignment>
void* Allocate(std::size_t size, Alignment... alignment) {
    if (void* memory = AllocateOrNull(size, alignment...))
        return memory;
    throw std::bad_alloc();
}

// What the program would have called if this file were not in between.
template <typename Function>
Function Next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

// A failed operation has an error that none of the tests would meet otherwise.
bool FileOperationFails() {
    if (!ShouldFail(Fault::FileOperation))
        return false;
    errno = EIO;
    return true;
}

// The same for one that a signal may stop.
bool InterruptibleFails() {
    if (!ShouldFail(Fault::Interruption))
        return FileOperationFails();
    errno = EINTR;
    return true;
}

std::atomic<std::FILE*> unreadable = nullptr;

}  // namespace
}  // namespace orbelle::testing

using namespace orbelle::testing;

// Every form, for a sanitizer's own forms do not call one another.
#define ORBELLE_BOTH_FORMS(result, name, parameters, work) \
    result name parameters {                               \
        work;                                              \
    }                                                      \
    result name[] parameters {                             \
        work;                                              \
    }
#define ORBELLE_NEW(parameters, work) ORBELLE_BOTH_FORMS(void*, operator new, parameters, work)
#define ORBELLE_DELETE(parameters) \
    ORBELLE_BOTH_FORMS(void, operator delete, parameters noexcept, std::free(memory))

ORBELLE_NEW((std::size_t size), return Allocate(size))
ORBELLE_NEW((std::size_t size, std::align_val_t to), return Allocate(size, to))
ORBELLE_NEW((std::size_t size, const std::nothrow_t&) noexcept, return AllocateOrNull(size))
ORBELLE_NEW((std::size_t size, std::align_val_t to, const std::nothrow_t&) noexcept,
            return AllocateOrNull(size, to))
ORBELLE_DELETE((void* memory))
ORBELLE_DELETE((void* memory, std::size_t))
ORBELLE_DELETE((void* memory, std::align_val_t))
ORBELLE_DELETE((void* memory, std::size_t, std::align_val_t))
ORBELLE_DELETE((void* memory, const std::nothrow_t&))
ORBELLE_DELETE((void* memory, std::align_val_t, const std::nothrow_t&))

// The dynamic linker gives the libraries, too, these functions in place of the C library's.
extern "C" {

#ifdef ORBELLE_OWN_MALLOC

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

static bool MallocFails() {
    if (!ShouldFail(Fault::Malloc))
        return false;
    errno = ENOMEM;
    return true;
}

#define ORBELLE_ALLOCATING(name, parameters, arguments)           \
    void* name parameters noexcept {                              \
        return MallocFails() ? nullptr : __libc_##name arguments; \
    }
ORBELLE_ALLOCATING(malloc, (std::size_t size), (size))
ORBELLE_ALLOCATING(calloc, (std::size_t count, std::size_t size), (count, size))
ORBELLE_ALLOCATING(realloc, (void* memory, std::size_t size), (memory, size))

#endif

#define ORBELLE_FAILING_BY(fails, result, failure, name, parameters, arguments) \
    result name parameters {                                                    \
        static const auto next = Next<result(*) parameters>(#name);             \
        return fails() ? (failure) : next arguments;                            \
    }
#define ORBELLE_FAILING(...) ORBELLE_FAILING_BY(FileOperationFails, __VA_ARGS__)
#define ORBELLE_INTERRUPTIBLE(...) ORBELLE_FAILING_BY(InterruptibleFails, __VA_ARGS__)

ORBELLE_FAILING(std::FILE*, nullptr, fopen, (const char* path, const char* mode), (path, mode))
ORBELLE_FAILING(int, -1, rename, (const char* from, const char* to) noexcept, (from, to))
ORBELLE_FAILING(int, -1, stat, (const char* path, struct stat* to) noexcept, (path, to))
ORBELLE_FAILING(int, -1, lstat, (const char* path, struct stat* to) noexcept, (path, to))
ORBELLE_FAILING(ssize_t, -1, readlink, (const char* path, char* to, std::size_t size) noexcept,
                (path, to, size))
ORBELLE_FAILING(int, -1, fchmodat, (int folder, const char* path, mode_t mode, int flags) noexcept,
                (folder, path, mode, flags))
ORBELLE_FAILING(int, -1, mkdir, (const char* path, mode_t mode) noexcept, (path, mode))
ORBELLE_FAILING(int, -1, fstat, (int file, struct stat* to) noexcept, (file, to))
ORBELLE_FAILING(int, -1, fchmod, (int file, mode_t mode) noexcept, (file, mode))
ORBELLE_FAILING(int, -1, fchown, (int file, uid_t user, gid_t group) noexcept, (file, user, group))
ORBELLE_FAILING(ssize_t, -1, flistxattr, (int file, char* to, std::size_t size) noexcept,
                (file, to, size))
ORBELLE_FAILING(ssize_t, -1, fgetxattr,
                (int file, const char* name, void* to, std::size_t size) noexcept,
                (file, name, to, size))
ORBELLE_FAILING(int, -1, fsetxattr,
                (int file, const char* name, const void* from, std::size_t size,
                 int flags) noexcept,
                (file, name, from, size, flags))
ORBELLE_FAILING(int, -1, fremovexattr, (int file, const char* name) noexcept, (file, name))
ORBELLE_INTERRUPTIBLE(int, -1, linkat,
                      (int from, const char* path, int to, const char* name, int flags) noexcept,
                      (from, path, to, name, flags))
ORBELLE_INTERRUPTIBLE(int, -1, ftruncate, (int file, off_t size) noexcept, (file, size))
ORBELLE_INTERRUPTIBLE(int, -1, fallocate, (int file, int mode, off_t from, off_t size),
                      (file, mode, from, size))

int open(const char* path, int flags, ...) {
    static const auto next = Next<decltype(&open)>("open");
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE
                            ? static_cast<mode_t>(va_arg(rest, unsigned))
                            : 0;
    va_end(rest);
    if (InterruptibleFails())
        return -1;
    if (!hasUnnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return next(path, flags, mode);
}

// Of a failing one half is on the disk, too.
ssize_t write(int file, const void* from, std::size_t size) {
    static const auto next = Next<decltype(&write)>("write");
    if (ShouldFail(Fault::Interruption))
        return next(file, from, std::max<std::size_t>(1, size / 2));
    if (!FileOperationFails())
        return next(file, from, size);
    next(file, from, size / 2);
    errno = EIO;
    return -1;
}

// There is no power cut here.
int fsync(int) {
    return InterruptibleFails() ? -1 : 0;
}

int close(int file) {
    static const auto next = Next<decltype(&close)>("close");
    const int result = next(file);
    return FileOperationFails() ? -1 : result;
}

std::size_t fread(void* to, std::size_t size, std::size_t count, std::FILE* file) {
    static const auto next = Next<decltype(&fread)>("fread");
    if (!FileOperationFails())
        return next(to, size, count, file);
    unreadable = file;
    return 0;
}

int ferror(std::FILE* file) noexcept {
    static const auto next = Next<decltype(&ferror)>("ferror");
    return file == unreadable ? 1 : next(file);
}

// Half of it is on the disk.
std::size_t fwrite(const void* from, std::size_t size, std::size_t count, std::FILE* file) {
    static const auto next = Next<decltype(&fwrite)>("fwrite");
    if (!FileOperationFails())
        return next(from, size, count, file);
    const std::size_t written = next(from, size, count / 2, file);
    errno = EIO;
    return written;
}

int fclose(std::FILE* file) {
    static const auto next = Next<decltype(&fclose)>("fclose");
    if (file == unreadable)
        unreadable = nullptr;
    const int result = next(file);
    return FileOperationFails() ? EOF : result;
}

// What the leak sanitizer is to pass over: AGG forgets its first list of blocks (2 KiB) when there
// is no memory for the first block.
const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() {
    return "leak:agg::rasterizer_cells_aa<agg::cell_aa>::allocate_block";
}

}  // extern "C"
