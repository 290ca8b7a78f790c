#include "staged_files_fixture.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

TEST_F(StagedFilesTest, PermissionsStay) {
    Write("a", "old");
    fs::permissions(folder / "a", fs::perms(0640));
    StagedFiles files(paths);
    StageAll(files, 3);
    files.Commit();
    EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms(0640));
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
