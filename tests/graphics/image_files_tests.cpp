#include "graphics/codecs/image_files.h"

#include <gmock/gmock.h>

#include "graphics/decoding.h"
#include "graphics/file_io.h"

namespace orbelle::graphics {
namespace {

TEST(ImageFiles, OtherDataIsNoPicture) {
    for (const FileBytes& file :
         {FileBytes{}, FileBytes{'B'}, FileBytes{0x89, 'P', 'N', 'G'}, FileBytes{0xFF, 0xD8},
          FileBytes{'G', 'I', 'F', '9', '9'}, FileBytes(100, 0)})
        EXPECT_EQ(ProblemOf(file), "not a PNG, JPEG, GIF or BMP picture");
}

TEST(ImageFiles, AFileIsToldByItsContentAndNamedWhenItFails) {
    const std::filesystem::path path = ::testing::TempDir() + "orbelle_picture.bmp";
    Bitmap image(1, 1);
    image.SetPixel(0, 0, 0x80102030);
    WriteFile(path, EncodePng(image));
    EXPECT_EQ(LoadImageFromFile(path).GetPixel(0, 0), Argb{0x80102030});
    WriteFile(path, FileBytes{'x'});
    EXPECT_THAT([&] { LoadImageFromFile(path); },
                ::testing::ThrowsMessage<FileError>(path.string() +
                                                    ": not a PNG, JPEG, GIF or BMP picture"));
    std::filesystem::remove(path);
}

}  // namespace
}  // namespace orbelle::graphics
