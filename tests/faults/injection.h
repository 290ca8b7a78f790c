// Makes allocations and file operations of this program fail on purpose.
#pragma once

namespace orbelle::testing {

enum class Fault {
    New,            // operator new in all its forms
    Malloc,         // besides, malloc, calloc and realloc, by which C libraries allocate
    FileOperation,  // opening, reading, writing, closing, renaming and asking about a file
    Interruption,   // no failure: a signal cuts a call short, so that it has to be made again
};

// The n-th alone, or that one and all after it.
enum class Extent { One, AllFrom };

// False where a sanitizer owns malloc.
bool CanFail(Fault fault);

// While it lives, the n-th operation of its kind (1 is the first) fails, on whatever thread. One at
// a time.
class Injection {
public:
    Injection(Fault fault, Extent extent, long n);
    ~Injection();
    Injection(const Injection&) = delete;
    Injection& operator=(const Injection&) = delete;

    bool HasFailedOne() const;
};

// While it lives the file system has no files without names.
class NoUnnamedFiles {
public:
    NoUnnamedFiles();
    ~NoUnnamedFiles();
    NoUnnamedFiles(const NoUnnamedFiles&) = delete;
    NoUnnamedFiles& operator=(const NoUnnamedFiles&) = delete;
};

}  // namespace orbelle::testing
