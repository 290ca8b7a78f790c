#include "failing_memory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int kNever = -1;
int left = kNever;
bool hasFailed = false;

}  // namespace

void* operator new(std::size_t size) {
    if (left != kNever && left-- == 0) {
        hasFailed = true;
        throw std::bad_alloc();
    }
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace orbelle::testing {

void FailAllocation(int passing) {
    hasFailed = false;
    left = passing;
}

bool HasAllocationFailed() {
    left = kNever;
    return hasFailed;
}

}  // namespace orbelle::testing
