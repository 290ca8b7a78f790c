#include "graphics/unfinished_files.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

TEST(UnfinishedFileTest, GoesUnlessItIsFinished) {
    const testing::TemporaryFolder folder;
    for (const bool isFinished : {false, true}) {
        const std::string name = isFinished ? "büro ✓" : "gone";
        {
            UnfinishedFile file(folder / name);
            std::ofstream(folder / name) << "half";
            if (isFinished)
                file.Finish();
        }
        EXPECT_EQ(std::filesystem::exists(folder / name), isFinished);
    }
}

}  // namespace
}  // namespace orbelle::graphics
