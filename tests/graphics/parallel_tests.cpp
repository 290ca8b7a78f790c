#include "graphics/parallel.h"

#include <gtest/gtest.h>

#include <chrono>
#include <new>

namespace orbelle::graphics {
namespace {

TEST(ForEachInParallel, DoesEveryPieceOnceAndThrowsAsTheyDo) {
    std::vector<int> done(1000);
    ForEachInParallel(done.size(), [&](std::size_t i) { ++done[i]; });
    EXPECT_EQ(done, std::vector<int>(1000, 1));
    ForEachInParallel(0, [](std::size_t) { FAIL(); });
    const auto half = [](std::size_t i) {
        if (i % 2 == 1)
            throw std::bad_alloc();
    };
    EXPECT_THROW(ForEachInParallel(100, half), std::bad_alloc);
}

int FreePlaces(WorkPlaces& places) {
    int free = 0;
    while (places.TryTake())
        ++free;
    for (int i = 0; i < free; ++i)
        places.Leave();
    return free;
}

TEST(ForEachInParallel, WorkWithinWorkKeepsToThePlaces) {
    WorkPlaces places(3);
    std::atomic<int> working = 0, most = 0, done = 0;
    const auto piece = [&](std::size_t i) {
        const int now = ++working;
        for (int before = most; before < now && !most.compare_exchange_weak(before, now);) {
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        ++done;
        --working;
        if (i == 7)
            throw std::bad_alloc();
    };
    {
        const WorkPlace place(places);
        ForEachInParallel(
            6, [&](std::size_t) { EXPECT_THROW(ForEachInParallel(8, piece), std::bad_alloc); });
        EXPECT_EQ(FreePlaces(places), 2);
    }
    EXPECT_EQ(done, 6 * 8);
    EXPECT_LE(most, 3);
    EXPECT_GE(most, 2);
    EXPECT_EQ(FreePlaces(places), 3);
}

TEST(WorkBreak, LeavesThePlaceToOthers) {
    WorkPlaces places(1);
    {
        const WorkPlace place(places);
        EXPECT_EQ(FreePlaces(places), 0);
        const WorkBreak forTheDisk;
        EXPECT_EQ(FreePlaces(places), 1);
    }
    EXPECT_EQ(FreePlaces(places), 1);
    const WorkBreak withoutPlace;
    EXPECT_EQ(FreePlaces(places), 1);
}

}  // namespace
}  // namespace orbelle::graphics
