// Links and devices among what is watched.
#include <fstream>

#include "cli/file_watch.h"
#include "watch_fixture.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::FilledPicture;

TEST_F(WatchTest, ItsOwnWritingThroughALinkIsNoChange) {
    fs::create_directory(folder / "to");
    fs::create_symlink("../a.png", folder / "to/a.png");
    ChangeWhatIsWrittenInto("to");
}

TEST_F(WatchTest, FoldersAndLinksOnTheWayMayChange) {
    for (const char* name : {"one", "two", "real"})
        fs::create_directory(folder / name);
    Write("one/a.png", FilledPicture(10, 10, kBlue));
    Write("real/a.png", FilledPicture(20, 10, kBlue));
    fs::create_symlink("../real/a.png", folder / "two/a.png");
    Start("open now/in/a.png export out.bmp info");
    ASSERT_TRUE(Tells("open now/in/a.png: No such file or directory", 1));
    fs::create_directory(folder / "now");
    fs::create_directory_symlink("../one", folder / "now/in");
    ASSERT_TRUE(Prints(1));
    fs::create_directory_symlink("../two", folder / "now/new");
    fs::rename(folder / "now/new", folder / "now/in");
    ASSERT_TRUE(Prints(2));
    EXPECT_EQ(Picture("out.bmp").Width(), 20);
    Write("real/a.png", FilledPicture(30, 10, kBlue));
    ASSERT_TRUE(Prints(3));
    fs::rename(folder / "two", folder / "three");
    ASSERT_TRUE(Tells("open now/in/a.png: No such file or directory", 2));
    fs::rename(folder / "three", folder / "two");
    ASSERT_TRUE(Prints(4));
    EXPECT_EQ(Picture("out.bmp").Width(), 30);
}

// Events stand in the queue as soon as the change is done.
TEST(FileWatchTest, WhateverLeadsToAFileIsSeenAndNothingElse) {
    const testing::TemporaryFolder folder;
    const auto at = [&](const char* name) { return folder / name; };
    const auto write = [&](const char* name) { std::ofstream(at(name)) << "text"; };
    fs::create_directories(at("real/folder"));
    write("real/folder/far");
    write("near");
    fs::create_symlink("../real/folder/far", at("real/link"));
    fs::create_directory_symlink("real", at("way"));
    const fs::path files[] = {at("near"), at("way/link"), at("none/yet")};

    FileWatch watch;
    const std::pair<std::function<void()>, bool> changes[] = {
        {[&] { write("near"); }, true},
        {[&] { write("other"); }, false},
        {[&] { fs::rename(at("other"), at("near")); }, true},
        {[&] { fs::last_write_time(at("near"), {}); }, true},
        {[&] { std::ifstream(at("near")).get(); }, false},
        {[&] { write("real/folder/far"); }, true},
        {[&] { write("real/far"); }, false},
        {[&] { fs::remove(at("real/link")); }, true},
        {[&] { fs::create_symlink("../near", at("real/link")); }, true},
        {[&] { write("real/folder/far"); }, false},
        {[&] { fs::rename(at("real"), at("real2")); }, true},
        {[&] { fs::create_directory(at("none")); }, true},
        {[&] { write("none/yet"); }, true},
        {[&] { fs::remove_all(at("none")); }, true},
    };
    int number = 0;
    for (const auto& [change, isSeen] : changes) {
        watch.Watch(files);
        while (watch.Wait(0ms)) {
        }
        change();
        EXPECT_EQ(watch.Wait(0ms), isSeen) << number;
        ++number;
    }
}

TEST_F(WatchTest, DevicesCantBeReadAgain) {
    EXPECT_EQ(Run("--watch --script /dev/null"),
              WrongUsage("--watch: the script /dev/null can't be read again"));
    // Nobody reads what is printed.
    EXPECT_EQ(Run("--watch open a.png info >/dev/full"),
              Failed("info: standard output: No space left on device"));
}

}  // namespace
}  // namespace orbelle::cli
