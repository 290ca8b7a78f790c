#include "graphics/parallel.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace orbelle::graphics
