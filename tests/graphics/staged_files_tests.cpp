#include "graphics/errors.h"
#include "staged_files_fixture.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

TEST_F(StagedFilesTest, AllOfThemOrNone) {
    Write("a", "old");
    Write("other", "kept");
    {
        StagedFiles files(paths);
        StageAll(files, 3);
    }
    EXPECT_THAT(All(), ElementsAre("a: old", "other: kept"));
    {
        StagedFiles files(paths);
        StageAll(files, 3);
        files.Commit();
    }
    EXPECT_THAT(
        All(), ElementsAre("a: new", "c: new", "in/", "in/side/", "in/side/b: new", "other: kept"));
}

TEST_F(StagedFilesTest, WhatWasReplacedComesBack) {
    Write("a", "old");
    {
        StagedFiles files(paths);
        StageAll(files, 3);
        fs::create_directory(folder / "c");
        fs::create_directory(folder / "c/d");
        EXPECT_THROW(files.Commit(), FileError);
    }
    EXPECT_THAT(All(), ElementsAre("a: old", "c/", "c/d/"));
}

TEST_F(StagedFilesTest, WhatIsInTheWayIsToldBeforeAnythingIsMade) {
    fs::create_directory(folder / "c");
    EXPECT_THAT([&] { StagedFiles{paths}; },
                ::testing::ThrowsMessage<FileError>(Utf8Of(folder / "c") +
                                                    ": there is something else of that name"));
    fs::remove(folder / "c");
    Write("in", "a file");
    EXPECT_THROW(StagedFiles{paths}, FileError);
    EXPECT_THAT(All(), ElementsAre("in: a file"));
}

}  // namespace
}  // namespace orbelle::graphics
