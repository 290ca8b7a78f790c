#include "graphics/file_io.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "graphics/codecs/image_files.h"
#include "support/pictures.h"
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
    const fs::path large = folder_ / "large";
    WriteFile(large, {});
    fs::resize_file(large, kMaxFileBytes + 1);
    const struct {
        bool Writes;
        fs::path Path;
        const char* Problem;
    } cases[] = {
        {true, folder_ / "missing/a", ": No such file or directory"},
        {true, folder_.Path(), ": Is a directory"},
        {true, "/dev/full", ": No space left on device"},
        {false, folder_ / "missing", ": No such file or directory"},
        {false, folder_.Path(), ": Is a directory"},
        {false, "/dev/null", ": not a regular file"},
        {false, large, ": larger than 512 MiB"},
    };
    for (const auto& test : cases)
        EXPECT_THAT([&] { test.Writes ? WriteFile(test.Path, kNew) : void(ReadFile(test.Path)); },
                    ThrowsMessage<FileError>(test.Path.string() + test.Problem));
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

TEST_F(FileIo, APictureIsToldByItsContentAndNamedWhenItFails) {
    const fs::path path = folder_ / "picture.bmp";
    WriteFile(path, EncodePng(testing::RowOf({0x80102030})));
    EXPECT_EQ(LoadImageFromFile(path).GetPixel(0, 0), Argb{0x80102030});
    for (const FileBytes& other :
         {FileBytes{}, FileBytes{'B'}, FileBytes{0x89, 'P', 'N', 'G'}, FileBytes{0xFF, 0xD8},
          FileBytes{'G', 'I', 'F', '9', '9'}, FileBytes(100, 0)}) {
        WriteFile(path, other);
        EXPECT_THAT(
            [&] { LoadImageFromFile(path); },
            ThrowsMessage<FileError>(path.string() + ": not a PNG, JPEG, GIF or BMP picture"));
    }
}

}  // namespace
}  // namespace orbelle::graphics
