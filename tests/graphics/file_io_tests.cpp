#include "graphics/file_io.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "graphics/errors.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::ThrowsMessage;
using FileBytes = std::vector<std::uint8_t>;

const FileBytes kOld = {'o', 'l', 'd'};
const FileBytes kNew = {'n', 'e', 'w', 0, 255};

class FileIo : public ::testing::Test {
protected:
    std::size_t FilesInFolder() const {
        return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
    }

    const testing::TemporaryFolder folder_;
};

TEST_F(FileIo, WritesAndReplacesWholeFiles) {
    const fs::path file = folder_ / "a";
    WriteFile(file, kOld);
    EXPECT_EQ(ReadFile(file), kOld);
    fs::permissions(file, fs::perms(0640));
    WriteFile(file, kNew);
    EXPECT_EQ(ReadFile(file), kNew);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
    WriteFile(file, {});
    EXPECT_TRUE(ReadFile(file).empty());
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(FileIo, WritesToWhatLinksPointAt) {
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

TEST_F(FileIo, FailuresNameTheFileAndTheReason) {
    struct Case {
        fs::path Path;
        std::string Problem;
    };
    const Case kWrites[] = {
        {folder_ / "missing/a", ": No such file or directory"},
        {folder_.Path(), ": Is a directory"},
        {"/dev/full", ": No space left on device"},
    };
    for (const auto& [path, problem] : kWrites)
        EXPECT_THAT([&] { WriteFile(path, kNew); },
                    ThrowsMessage<FileError>(path.string() + problem));

    const fs::path large = folder_ / "large";
    WriteFile(large, {});
    fs::resize_file(large, kMaxFileBytes + 1);
    const Case kReads[] = {
        {folder_ / "missing", ": No such file or directory"},
        {folder_.Path(), ": Is a directory"},
        {"/dev/null", ": not a regular file"},
        {large, ": larger than 256 MiB"},
    };
    for (const auto& [path, problem] : kReads)
        EXPECT_THAT([&] { ReadFile(path); }, ThrowsMessage<FileError>(path.string() + problem));
}

// Like a disk that fills up: the old file stays, and nothing is left beside it.
TEST_F(FileIo, AFailureHalfwayLeavesTheOldFile) {
    const fs::path file = folder_ / "a";
    WriteFile(file, kOld);
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        bool refused = false;
        try {
            WriteFile(file, FileBytes(100000));
        } catch (const FileError& error) {
            refused = error.what() == file.string() + ": File too large";
        }
        _exit(refused ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ReadFile(file), kOld);
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(FileIo, AReadOnlyFileIsNotReplaced) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everywhere";
    const fs::path file = folder_ / "a";
    WriteFile(file, kOld);
    fs::permissions(file, fs::perms(0444));
    EXPECT_THAT([&] { WriteFile(file, kNew); },
                ThrowsMessage<FileError>(EndsWith(": Permission denied")));
    EXPECT_EQ(ReadFile(file), kOld);
}

}  // namespace
}  // namespace orbelle::graphics
