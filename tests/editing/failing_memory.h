// Memory that runs out when a test says so.
#pragma once

namespace orbelle::testing {

// Lets so many allocations pass; the one after them throws std::bad_alloc, and those after that
// pass again.
void FailAllocation(int passing);

// Whether it came to that since FailAllocation, which no longer holds.
bool HasAllocationFailed();

}  // namespace orbelle::testing
