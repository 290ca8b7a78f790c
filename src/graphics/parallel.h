// Independent pieces of work on all cores.
#pragma once

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace orbelle::graphics {

// Runs work(0) to work(count - 1), in any order and at the same time; they must not touch the same
// things. Returns when all are done. The first exception thrown is thrown again here, as it was.
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
    const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
    try {
        for (std::size_t i = 1; i < std::min(count, cores); ++i)
            helpers.emplace_back(run);
    } catch (const std::exception&) {
        // As many as memory and the system give; this one does the rest.
    }
    run();
    helpers.clear();
    if (failure)
        std::rethrow_exception(failure);
}

}  // namespace orbelle::graphics
