#include "file_io_fixture.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "support/pictures.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using ::testing::ThrowsMessage;

TEST_F(FileIo, WritesAndReplacesWholeFiles) {
    const fs::path file = folder_ / "a";
    WriteFile(file, kOld);
    EXPECT_EQ(ReadFile(file), kOld);
    WriteFile(file, kNew);
    EXPECT_EQ(ReadFile(file), kNew);
    EXPECT_EQ(FilesInFolder(), 1u);
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
        {false, folder_ / "missing", ": No such file or directory"},
        {false, folder_.Path(), ": Is a directory"},
        {false, large, ": larger than 512 MiB"},
    };
    for (const auto& test : cases)
        EXPECT_THAT([&] { test.Writes ? WriteFile(test.Path, kNew) : void(ReadFile(test.Path)); },
                    ThrowsMessage<FileError>(Utf8Of(test.Path) + test.Problem));
}

TEST_F(FileIo, AFileWithSeveralNamesKeepsThem) {
    const fs::path file = folder_ / "a", other = folder_ / "b";
    WriteFile(file, kNew);
    fs::create_hard_link(file, other);
    WriteFile(file, kOld);
    EXPECT_EQ(ReadFile(other), kOld);
    EXPECT_EQ(Copies(), 0u);
    EXPECT_EQ(FilesInFolder(), 3u);  // with the state folder
}

TEST_F(FileIo, APictureIsToldByItsContentAndNamedWhenItFails) {
    const fs::path path = folder_ / "picture.bmp";
    WriteFile(path, EncodePng(testing::RowOf({0x80102030})));
    EXPECT_EQ(LoadImageFromFile(path).GetPixel(0, 0), Argb{0x80102030});
    for (const FileBytes& other :
         {FileBytes{}, FileBytes{'B'}, FileBytes{0x89, 'P', 'N', 'G'}, FileBytes{0xFF, 0xD8},
          FileBytes{'G', 'I', 'F', '9', '9'}, FileBytes(100, 0)}) {
        WriteFile(path, other);
        EXPECT_THAT([&] { LoadImageFromFile(path); },
                    ThrowsMessage<FileError>(Utf8Of(path) +
                                             ": not a PNG, JPEG, GIF, BMP, WebP or SVG picture"));
    }
}

}  // namespace
}  // namespace orbelle::graphics
