#include "graphics/work_places.h"

#include <algorithm>
#include <thread>

namespace orbelle::graphics {
namespace {

// Where the thread has a place; null: nowhere.
thread_local WorkPlaces* ownPlaces = nullptr;

}  // namespace

WorkPlaces& WorkPlaces::OfThisThread() {
    static WorkPlaces process(std::max(std::thread::hardware_concurrency(), 1U) - 1);
    return ownPlaces ? *ownPlaces : process;
}

bool WorkPlaces::TryTake() {
    const std::lock_guard lock(mutex_);
    if (free_ == 0)
        return false;
    --free_;
    return true;
}

void WorkPlaces::Take() {
    std::unique_lock lock(mutex_);
    left_.wait(lock, [this] { return free_ > 0; });
    --free_;
}

void WorkPlaces::Leave() {
    const std::lock_guard lock(mutex_);
    ++free_;
    left_.notify_one();
}

WorkPlace::WorkPlace(WorkPlaces& places, bool isTaken) {
    if (!isTaken)
        places.Take();
    ownPlaces = &places;
}

WorkPlace::~WorkPlace() {
    ownPlaces->Leave();
    ownPlaces = nullptr;
}

WorkBreak::WorkBreak() {
    if (ownPlaces)
        ownPlaces->Leave();
}

WorkBreak::~WorkBreak() {
    if (ownPlaces)
        ownPlaces->Take();
}

}  // namespace orbelle::graphics
