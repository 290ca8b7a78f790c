#include "formats/icon_file.h"

#include <gmock/gmock.h>

#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using graphics::Bitmap;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using Bytes = std::vector<std::uint8_t>;

constexpr int kDirectoryBytes = 6;
constexpr int kEntryBytes = 16;

Bytes Part(const Bytes& bytes, std::size_t offset, std::size_t count) {
    const auto start = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
    return {start, start + static_cast<std::ptrdiff_t>(count)};
}

TEST(IconFile, ABitmapEntryStandsByteForByte) {
    Bitmap picture(2, 2);
    picture.SetPixel(0, 0, 0xFF112233);
    picture.SetPixel(1, 0, 0x00445566);
    picture.SetPixel(0, 1, 0x80778899);
    picture.SetPixel(1, 1, 0xFFAABBCC);
    // clang-format off
    const Bytes expected = {
        0, 0, 1, 0, 1, 0,                                         // directory
        2, 2, 0, 0,  1, 0, 32, 0,  64, 0, 0, 0,  22, 0, 0, 0,     // entry
        40, 0, 0, 0,  2, 0, 0, 0,  4, 0, 0, 0,  1, 0, 32, 0,      // bitmap header
        0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0,  0, 0, 0, 0,
        0x99, 0x88, 0x77, 0x80,  0xCC, 0xBB, 0xAA, 0xFF,          // the lower row
        0x33, 0x22, 0x11, 0xFF,  0x66, 0x55, 0x44, 0x00,          // the upper row
        0, 0, 0, 0,  0x40, 0, 0, 0,                               // mask
    };
    // clang-format on
    EXPECT_THAT(EncodeIcon({&picture, 1}, IconFormat::Bmp), ElementsAreArray(expected));
}

TEST(IconFile, APointerTellsItsHotSpotInsteadOfPlanesAndBits) {
    const Bitmap pictures[] = {Bitmap(1, 1), Bitmap(8, 8)};
    const Hotspot hotspots[] = {{0, 0}, {7, 258}};
    const Bytes pointer = EncodeIcon(pictures, IconFormat::Bmp, {}, hotspots);
    EXPECT_THAT(Part(pointer, 0, 14), ElementsAre(0, 0, 2, 0, 2, 0, 1, 1, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(Part(pointer, 22, 8), ElementsAre(8, 8, 0, 0, 7, 0, 2, 1));
}

TEST(IconFile, MaskRowsAreFilledUpToFourBytes) {
    Bitmap picture(33, 1);
    for (int x : {1, 2, 3, 4, 5, 6, 7, 31})
        picture.SetPixel(x, 0, 0x01000000);
    const Bytes icon = EncodeIcon({&picture, 1}, IconFormat::Bmp);
    EXPECT_THAT(Part(icon, icon.size() - 8, 8), ElementsAre(0x80, 0xFF, 0xFF, 0xFE, 0x80, 0, 0, 0));
}

TEST(IconFile, TheFormatDecidesWhichPicturesArePng) {
    const Bitmap pictures[] = {Bitmap(256, 255), Bitmap(16, 16, graphics::PixelFormat::Rgb24)};
    const struct {
        IconFormat Format;
        bool IsPng[2];
    } cases[] = {{IconFormat::Bmp, {false, false}},
                 {IconFormat::Png256, {true, false}},
                 {IconFormat::Png, {true, true}}};
    for (const auto& [format, isPng] : cases) {
        const Bytes icon = EncodeIcon(pictures, format);
        EXPECT_THAT(Part(icon, 0, 8), ElementsAre(0, 0, 1, 0, 2, 0, 0, 255));
        EXPECT_THAT(Part(icon, 22, 2), ElementsAre(16, 16));
        std::size_t end = kDirectoryBytes + 2 * kEntryBytes;
        for (int i = 0; i < 2; ++i) {
            const std::size_t entry = kDirectoryBytes + i * kEntryBytes;
            const auto size = graphics::NumberAt<std::uint32_t>(icon, entry + 8);
            EXPECT_EQ(graphics::NumberAt<std::uint32_t>(icon, entry + 12), end);
            ASSERT_LE(end + size, icon.size());
            const Bytes data = Part(icon, end, size);
            end += size;
            EXPECT_EQ(data[0], isPng[i] ? 0x89 : 40);
            if (isPng[i]) {
                EXPECT_EQ(graphics::DecodeImage(data).Width(), pictures[i].Width());
                EXPECT_EQ(data[25], 6) << "32 bits with alpha";
            }
        }
        EXPECT_EQ(end, icon.size());
    }
}

TEST(IconFile, RefusesWhatNoEntryCanHold) {
    const std::vector<Bitmap> cases[] = {{}, {Bitmap()}, {Bitmap(257, 1)}, {Bitmap(1, 257)}};
    for (const auto& pictures : cases)
        EXPECT_THROW(EncodeIcon(pictures, IconFormat::Bmp), std::invalid_argument);
}

TEST(CombinePngs, PassesOverEmptyNamesAndNamesTheFileAtFault) {
    const testing::TemporaryFolder folder;
    const auto write = [&](const char* name, const Bytes& bytes) {
        graphics::WriteFile(folder / name, bytes);
        return folder / name;
    };
    const auto output = folder / "out.ico";
    const Bitmap pictures[] = {Bitmap(3, 2), Bitmap(256, 256)};
    std::vector<std::filesystem::path> names(7);
    CombinePngs(names, output);
    EXPECT_FALSE(std::filesystem::exists(output));

    names[1] = write("1.png", graphics::EncodePng(pictures[0]));
    for (const auto& bad : {write("large.png", graphics::EncodePng(Bitmap(257, 16))),
                            write("text.png", {'t', 'e', 'x', 't'}), folder / "missing.png"}) {
        names[3] = bad;
        EXPECT_THAT(
            [&] { CombinePngs(names, output); },
            ::testing::ThrowsMessage<graphics::FileError>(HasSubstr(graphics::Utf8Of(bad))));
        EXPECT_FALSE(std::filesystem::exists(output));
    }

    names[3] = write("2.png", graphics::EncodePng(pictures[1]));
    for (const IconFormat format : {IconFormat::Bmp, IconFormat::Png}) {
        CombinePngs(names, output, format);
        EXPECT_EQ(graphics::ReadFile(output), EncodeIcon(pictures, format));
    }
    names.emplace_back();
    EXPECT_THROW(CombinePngs(names, output), std::invalid_argument);
}

}  // namespace
}  // namespace orbelle::formats
