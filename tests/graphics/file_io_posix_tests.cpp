#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <thread>

#include "file_io_fixture.h"
#include "graphics/errors.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::ThrowsMessage;

// Read and write for the owner, read for the user 12, as the system stores it.
constexpr struct {
    std::uint32_t Version = 2;
    struct {
        std::uint16_t Tag, Permissions;
        std::uint32_t User;
    } Entries[5] = {{1, 6, ~0u}, {2, 4, 12}, {4, 0, ~0u}, {16, 4, ~0u}, {32, 0, ~0u}};
} kAccess;
constexpr const char* kAccessName = "system.posix_acl_access";

struct stat StatusOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status;
}

// A user who is not the system's administrator, whom no permission stops.
class OrdinaryUser {
public:
    OrdinaryUser() {
        if (isRoot_) {
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~OrdinaryUser() {
        if (isRoot_) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    const bool isRoot_ = geteuid() == 0;
};

class PosixFileIo : public FileIo {
protected:
    // What an ordinary user may do with the file of another one, in that one's folder.
    fs::path FileOfOthers(fs::perms ofFile, fs::perms ofFolder) {
        fs::create_directory(folder_ / "others");
        const fs::path file = folder_ / "others" / "a";
        WriteFile(file, kOld);
        fs::permissions(folder_.Path(), fs::perms(0777));
        fs::permissions(file, ofFile);
        fs::permissions(folder_ / "others", ofFolder);
        return file;
    }
};

TEST_F(PosixFileIo, PermissionsStay) {
    const fs::path file = folder_ / "a";
    WriteFile(file, kOld);
    fs::permissions(file, fs::perms(0640));
    WriteFile(file, kNew);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
}

TEST_F(PosixFileIo, DevicesAreToldAsWhatTheyAre) {
    EXPECT_THAT([] { WriteFile("/dev/full", kNew); },
                ThrowsMessage<FileError>("/dev/full: No space left on device"));
    EXPECT_THAT([] { ReadFile("/dev/null"); },
                ThrowsMessage<FileError>("/dev/null: not a regular file"));
}

TEST_F(PosixFileIo, WritesToWhatLinksPointAt) {
    fs::create_directory(folder_ / "b");
    fs::create_symlink("b/target", folder_ / "near");
    fs::create_symlink(folder_ / "near", folder_ / "far");
    WriteFile(folder_ / "far", kOld);  // makes the missing target
    WriteFile(folder_ / "far", kNew);
    EXPECT_EQ(ReadFile(folder_ / "b/target"), kNew);
    EXPECT_TRUE(fs::is_symlink(folder_ / "far"));
    EXPECT_TRUE(fs::is_symlink(folder_ / "near"));

    fs::create_symlink("loop", folder_ / "loop");
    EXPECT_THAT([&] { WriteFile(folder_ / "loop", kNew); },
                ThrowsMessage<FileError>(EndsWith("loop: Too many levels of symbolic links")));
}

TEST_F(PosixFileIo, AReadOnlyFileIsNotReplaced) {
    const fs::path file = FileOfOthers(fs::perms(0444), fs::perms(0777));
    const OrdinaryUser user;
    EXPECT_THAT([&] { WriteFile(file, kNew); },
                ThrowsMessage<FileError>(EndsWith(": Permission denied")));
    EXPECT_EQ(ReadFile(file), kOld);
}

TEST_F(PosixFileIo, AReplacedFileKeepsWhatBelongsToIt) {
    const fs::path file = folder_ / "a", plain = folder_ / "b";
    WriteFile(file, kOld);
    WriteFile(plain, kOld);
    // What the folder hands down to new files must not come to a replaced one.
    const bool hasLists = setxattr(folder_.Path().c_str(), "system.posix_acl_default", &kAccess,
                                   sizeof kAccess, 0) == 0;
    fs::permissions(plain, fs::perms(0604));
    EXPECT_EQ(setxattr(file.c_str(), kAccessName, &kAccess, sizeof kAccess, 0) == 0, hasLists);
    const bool hasAttributes = setxattr(file.c_str(), "user.origin", "here", 4, 0) == 0;
    if (geteuid() == 0) {
        EXPECT_EQ(chown(file.c_str(), 12, 34), 0);
    }
    const struct stat before = StatusOf(file);

    WriteFile(file, kNew);
    WriteFile(plain, kNew);
    const struct stat after = StatusOf(file);
    EXPECT_EQ(ReadFile(file), kNew);
    EXPECT_NE(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(StatusOf(plain).st_mode & 0777, 0604u);
    char value[256] = {};
    EXPECT_EQ(getxattr(file.c_str(), "user.origin", value, sizeof value), hasAttributes ? 4 : -1);
    EXPECT_STREQ(value, hasAttributes ? "here" : "");
    EXPECT_EQ(getxattr(file.c_str(), kAccessName, value, sizeof value),
              hasLists ? static_cast<ssize_t>(sizeof kAccess) : -1);
    EXPECT_EQ(getxattr(plain.c_str(), kAccessName, value, sizeof value), -1);
}

TEST_F(PosixFileIo, AFileThatMayNotBeReplacedIsWrittenInPlace) {
    const fs::path file = FileOfOthers(fs::perms(0666), fs::perms(0555));
    {
        const OrdinaryUser user;
        WriteFile(file, kNew);
        EXPECT_EQ(ReadFile(file), kNew);
        EXPECT_EQ(Copies(), 0u);

        // Without a place for a copy it stays as it is.
        testing::SetEnvironment({{"XDG_STATE_HOME", "/dev/null/state"}});
        EXPECT_THAT(
            [&] { WriteFile(file, kOld); },
            ThrowsMessage<FileError>(file.string() +
                                     ": Permission denied, and a copy for writing in place can't "
                                     "be made: /dev/null/state/orbelle: Not a directory"));
        EXPECT_EQ(ReadFile(file), kNew);
        EXPECT_THAT([&] { WriteFile(folder_ / "others" / "new", kOld); },
                    ThrowsMessage<FileError>(EndsWith("new: Permission denied")));
    }
    fs::permissions(folder_ / "others", fs::perms(0777));
}

TEST_F(PosixFileIo, WhatAKilledSaveLeftGoesWithTheNextOne) {
    const std::string own = std::to_string(getpid());
    const std::string stale[] = {".orbelle-2147483647-12.tmp"};
    const std::string kept[] = {
        ".orbelle-" + own + "-12.tmp", ".orbelle-1-12.tmp",           ".orbelle-2147483647-.tmp",
        ".orbelle-2147483647-1x.tmp",  ".orbelle--2147483647-1.tmp",  ".orbelle-99999999999-1.tmp",
        "x.orbelle-2147483647-1.tmp",  ".orbelle-2147483647-12.tmp~", ".orbelle-2147483647-13.tmp"};
    for (const std::string& name : stale)
        std::ofstream(folder_ / name) << "half";
    for (const std::string& name : kept)
        std::ofstream(folder_ / name) << "half";
    // As if its process was one of another machine's.
    const int inUse = open((folder_ / kept[8]).c_str(), O_RDONLY);
    ASSERT_EQ(flock(inUse, LOCK_EX), 0);
    WriteFile(folder_ / "a", kNew);
    close(inUse);
    for (const std::string& name : stale)
        EXPECT_FALSE(fs::exists(folder_ / name)) << name;
    for (const std::string& name : kept)
        EXPECT_TRUE(fs::exists(folder_ / name)) << name;
}

TEST_F(PosixFileIo, PipesAndOpenFilesAreWrittenTo) {
    const fs::path fifo = folder_ / "fifo", link = folder_ / "link";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    fs::create_symlink("fifo", link);
    const FileBytes large(1 << 20, 'x');  // more than a pipe holds
    std::string read;
    std::thread reader([&] {
        std::ifstream stream(fifo, std::ios::binary);
        read.assign(std::istreambuf_iterator<char>(stream), {});
    });
    WriteFile(link, large);
    reader.join();
    EXPECT_EQ(read.size(), large.size());
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(fs::is_fifo(fifo));

    // A reader that goes away.
    void (*const before)(int) = std::signal(SIGPIPE, SIG_IGN);
    std::thread leaving([&] { close(open(fifo.c_str(), O_RDONLY)); });
    EXPECT_THAT([&] { WriteFile(fifo, large); },
                ThrowsMessage<FileError>(fifo.string() + ": Broken pipe"));
    leaving.join();
    std::signal(SIGPIPE, before);

    // Behind what is in there already; this file has no name any more.
    const fs::path nameless = folder_ / "nameless";
    WriteFile(nameless, kOld);
    const int file = open(nameless.c_str(), O_RDWR);
    fs::remove(nameless);
    WriteFile("/dev/fd/" + std::to_string(file), kNew);
    char text[9] = {};
    EXPECT_EQ(pread(file, text, sizeof text, 0), 8);
    EXPECT_EQ(std::string(text, 6), "oldnew");
    close(file);
    EXPECT_EQ(FilesInFolder(), 2u);
}

}  // namespace
}  // namespace orbelle::graphics
