// Independent pieces of work on all cores.
#pragma once

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "graphics/other_core.h"
#include "graphics/work_places.h"

namespace orbelle::graphics {

// Runs work(0) to work(count - 1), in any order and at the same time; they must not touch the same
// things. Returns when all are done. The first exception thrown is thrown again here, as it was.
// Work that calls this again, or runs on one of many threads, gets no more threads than there are
// places (work_places.h).
template <typename Work>
void ForEachInParallel(std::size_t count, const Work& work) {
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::exception_ptr failure;
    const auto run = [&] {
        try {
            for (std::size_t i = next++; i < count; i = next++)
                work(i);
        } catch (...) {
            const std::lock_guard lock(mutex);
            if (!failure)
                failure = std::current_exception();
        }
    };
    std::vector<std::jthread> helpers;
    WorkPlaces& places = WorkPlaces::OfThisThread();
    for (std::size_t i = 1; i < count && places.TryTake(); ++i) {
        try {
            helpers.emplace_back([&] {
                const WorkPlace place(places, true);
                run();
            });
            MoveToOtherCore(helpers.back());
        } catch (const std::exception&) {
            // As many as memory and the system give; this one does the rest.
            places.Leave();
            break;
        }
    }
    run();
    helpers.clear();
    if (failure)
        std::rethrow_exception(failure);
}

}  // namespace orbelle::graphics
