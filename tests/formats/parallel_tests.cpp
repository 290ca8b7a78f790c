#include "formats/parallel.h"

#include <gtest/gtest.h>

#include <new>

namespace orbelle::formats {
namespace {

TEST(ForEachInParallel, DoesEveryPieceOnce) {
    std::vector<int> done(1000);
    ForEachInParallel(done.size(), [&](std::size_t i) { ++done[i]; });
    EXPECT_EQ(done, std::vector<int>(1000, 1));
    ForEachInParallel(0, [](std::size_t) { FAIL(); });
}

TEST(ForEachInParallel, AFailureComesOutAsItWasThrown) {
    std::vector<int> done(100);
    const auto work = [&](std::size_t i) {
        if (i % 2 == 1)
            throw std::bad_alloc();
        ++done[i];
    };
    EXPECT_THROW(ForEachInParallel(done.size(), work), std::bad_alloc);
}

}  // namespace
}  // namespace orbelle::formats
