#include "graphics/staged_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

class StagedFilesTest : public ::testing::Test {
protected:
    // "NAME: TEXT" of all files, "NAME/" of folders, sorted.
    std::vector<std::string> All() const {
        std::vector<std::string> all;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.Path())) {
            const std::string name = entry.path().lexically_relative(folder.Path()).string();
            if (entry.is_directory()) {
                all.push_back(name + "/");
                continue;
            }
            const std::vector<std::uint8_t> bytes = ReadFile(entry.path());
            all.push_back(name + ": " + std::string(bytes.begin(), bytes.end()));
        }
        std::ranges::sort(all);
        return all;
    }
    void Write(const std::string& name, const std::string& text) const {
        WriteFile(folder / name, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    }
    static void StageAll(StagedFiles& files, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            files.Stage(i, std::vector<std::uint8_t>{'n', 'e', 'w'});
    }

    testing::TemporaryFolder folder;
    const std::vector<fs::path> paths = {folder / "a", folder / "in/side/b", folder / "c"};
};

TEST_F(StagedFilesTest, AllOfThemOrNone) {
    Write("a", "old");
    Write("other", "kept");
    fs::permissions(folder / "a", fs::perms(0640));
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
    EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms(0640));
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
                ::testing::ThrowsMessage<FileError>((folder / "c").string() +
                                                    ": there is something else of that name"));
    fs::remove(folder / "c");
    Write("in", "a file");
    EXPECT_THROW(StagedFiles{paths}, FileError);
    EXPECT_THAT(All(), ElementsAre("in: a file"));
}

TEST_F(StagedFilesTest, LinksAreFollowed) {
    fs::create_directory(folder / "far");
    Write("far/a", "old");
    fs::create_symlink("far/a", folder / "a");
    const std::vector<fs::path> one = {folder / "a"};
    StagedFiles files(one);
    StageAll(files, 1);
    files.Commit();
    EXPECT_THAT(All(), ElementsAre("a: new", "far/", "far/a: new"));
    EXPECT_TRUE(fs::is_symlink(folder / "a"));
}

}  // namespace
}  // namespace orbelle::graphics
