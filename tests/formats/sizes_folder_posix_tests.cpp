#include <gtest/gtest.h>

#include <cstdlib>

#include "formats/export_icon.h"
#include "support/system.h"

namespace orbelle::formats {
namespace {

TEST(SizesFolderTest, ARelativeCacheFolderCountsAsNone) {
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    testing::SetEnvironment({{"XDG_CACHE_HOME", "relative"}, {"HOME", "/home/someone"}});
    EXPECT_EQ(SizesFolder(), "/home/someone/.cache/Sizes");
    testing::SetEnvironment({{"HOME", home}});
}

}  // namespace
}  // namespace orbelle::formats
