// How many threads compute at a time.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace orbelle::graphics {

// Places for threads that compute. Whoever starts threads takes one for each, so that those who
// are started by such threads don't become more than there are cores.
class WorkPlaces {
public:
    explicit WorkPlaces(std::size_t count) : free_(count) {}

    // Those that the calling thread has its place of; else those of the process, one for each core
    // beside this one.
    static WorkPlaces& OfThisThread();

    bool TryTake();
    void Take();
    void Leave();

private:
    std::mutex mutex_;
    std::condition_variable left_;
    std::size_t free_;
};

// What the calling thread does in the meantime it does at a place, which it waits for or, with
// `isTaken`, that has been taken for it.
class WorkPlace {
public:
    explicit WorkPlace(WorkPlaces& places, bool isTaken = false);
    WorkPlace(const WorkPlace&) = delete;
    WorkPlace& operator=(const WorkPlace&) = delete;
    ~WorkPlace();
};

// While the calling thread only waits, for the disk say, another one has its place, if it has one.
class WorkBreak {
public:
    WorkBreak();
    WorkBreak(const WorkBreak&) = delete;
    WorkBreak& operator=(const WorkBreak&) = delete;
    ~WorkBreak();
};

}  // namespace orbelle::graphics
