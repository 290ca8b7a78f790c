#include "faults/injection.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
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

#define ORBELLE_FAILING(result, failure, name, parameters, arguments) \
    result name parameters {                                          \
        static const auto next = Next<result(*) parameters>(#name);   \
        return FileOperationFails() ? (failure) : next arguments;     \
    }

ORBELLE_FAILING(std::FILE*, nullptr, fopen, (const char* path, const char* mode), (path, mode))
ORBELLE_FAILING(int, -1, rename, (const char* from, const char* to) noexcept, (from, to))
ORBELLE_FAILING(int, -1, stat, (const char* path, struct stat* to) noexcept, (path, to))
ORBELLE_FAILING(int, -1, lstat, (const char* path, struct stat* to) noexcept, (path, to))
ORBELLE_FAILING(ssize_t, -1, readlink, (const char* path, char* to, std::size_t size) noexcept,
                (path, to, size))
ORBELLE_FAILING(int, -1, fchmodat, (int folder, const char* path, mode_t mode, int flags) noexcept,
                (folder, path, mode, flags))
ORBELLE_FAILING(int, -1, mkdir, (const char* path, mode_t mode) noexcept, (path, mode))

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

}  // extern "C"
