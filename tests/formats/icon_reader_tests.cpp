#include "formats/icon_reader.h"

#include <gmock/gmock.h>

#include <climits>

#include "formats/icon_file.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using graphics::Append;
using graphics::Bitmap;
using graphics::ImageError;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::PixelsOf;
using ::testing::ThrowsMessage;
using Bytes = std::vector<std::uint8_t>;

struct Entry {
    std::int32_t Width = 1;
    std::int32_t Height = 2;  // colours and mask together
    std::int16_t BitCount = 32;
    Bytes Pixels = {};
};

Bytes MakeIcon(const std::vector<Entry>& entries, std::uint16_t reserved = 0,
               std::uint16_t type = 1) {
    Bytes icon;
    Append<std::uint16_t>(icon, reserved);
    Append<std::uint16_t>(icon, type);
    Append<std::uint16_t>(icon, static_cast<std::uint16_t>(entries.size()));
    std::size_t offset = icon.size() + 16 * entries.size();
    for (const Entry& entry : entries) {
        icon.insert(icon.end(), 12, 0xEE);  // what nobody reads
        Append<std::uint32_t>(icon, static_cast<std::uint32_t>(offset));
        offset += 40 + entry.Pixels.size();
    }
    for (const auto& [width, height, bits, pixels] : entries) {
        Append<std::uint32_t>(icon, 0xEEEEEEEE);
        Append<std::int32_t>(icon, width);
        Append<std::int32_t>(icon, height);
        Append<std::uint16_t>(icon, 0xEEEE);
        Append<std::int16_t>(icon, bits);
        icon.insert(icon.end(), 24, 0xEE);
        icon.insert(icon.end(), pixels.begin(), pixels.end());
    }
    return icon;
}

std::vector<IconEntryImage> Decode(const Bytes& icon) {
    return DecodeIcon(graphics::MemorySource(icon));
}

std::string ProblemOf(const Bytes& icon) {
    try {
        Decode(icon);
    } catch (const ImageError& error) {
        return error.what();
    }
    return "";
}

TEST(IconReader, TakesPixelsBottomUpRightBehindTheHeader) {
    const std::vector<IconEntryImage> entries =
        Decode(MakeIcon({{2, 5, 32, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0}},
                         {1, 2, 24, {0x33, 0x22, 0x11, 0xFF}}}));
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(std::tuple(entries[0].Width, entries[0].Height, entries[0].BitCount),
              std::tuple(2, 2, 32));
    EXPECT_THAT(PixelsOf(entries[0].Image),
                ElementsAre(0x0C0B0A09, 0x000F0E0D, 0x04030201, 0x08070605));
    EXPECT_THAT(PixelsOf(entries[1].Image), ElementsAre(0xFF112233));
}

TEST(IconReader, WrittenIconsComeBack) {
    const Bitmap pictures[] = {testing::PictureOf({"#..", ".##"}, 0x80123456), Bitmap(256, 256),
                               testing::FilledPicture(17, 1, 0x01FFFFFF)};
    const std::vector<IconEntryImage> entries = Decode(EncodeIcon(pictures, IconFormat::Bmp));
    ASSERT_EQ(entries.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_TRUE(testing::SamePixels(entries[i].Image, pictures[i])) << i;
    // One PNG entry spoils the others.
    EXPECT_THAT(ProblemOf(EncodeIcon(pictures, IconFormat::Png256)), HasSubstr("169478669 x "));
}

TEST(IconReader, RefusesTheWholeFile) {
    const char* const missing = "the pixels of a large image are missing";
    const char* const tooLarge = "the images of the icon are too large together";
    const std::pair<Bytes, const char*> cases[] = {
        {{}, "the icon holds no image"},
        {MakeIcon({}), "the icon holds no image"},
        {MakeIcon({{}}, 0, 0), ""},
        {MakeIcon({{}}, 0, 2), "not a Windows icon"},
        {MakeIcon({{}}, 0, 0xFFFF), "not a Windows icon"},
        {MakeIcon({{}}, 1, 1), "not a Windows icon"},
        {MakeIcon({{}, {16384, 2, 32, {}}}), ""},
        // A short file takes little memory, also with many entries that share one large image.
        {MakeIcon({{1024, 2048, 32, {}}}), ""},
        {MakeIcon({{1024, 2050, 32, {}}}), missing},
        {MakeIcon({{1024, 2050, 32, {1}}}), ""},
        {MakeIcon(std::vector<Entry>(65, Entry{1024, 2048, 32, {}})), tooLarge},
    };
    for (const auto& [icon, problem] : cases)
        EXPECT_EQ(ProblemOf(icon), problem);

    const auto expectRefused = [](int width, int height) {
        EXPECT_NE(ProblemOf(MakeIcon({{}, {width, height, 32, Bytes(16)}})), "")
            << width << " x " << height;
    };
    for (const int width : {0, -1, 16385, INT_MAX, INT_MIN})
        expectRefused(width, 2);
    for (const int height : {0, 1, -2, 2 * 16385, INT_MAX, INT_MIN})
        expectRefused(1, height);
    expectRefused(16384, 16384);
}

TEST(IconReader, TakesAsManyEntriesAsTheDirectoryCanCount) {
    const std::vector<IconEntryImage> entries =
        Decode(MakeIcon(std::vector<Entry>(0xFFFF, Entry{1, 2, 32, {1, 2, 3, 4}})));
    ASSERT_EQ(entries.size(), 0xFFFFu);
    EXPECT_EQ(entries.back().Image.GetPixel(0, 0), 0x04030201u);
}

TEST(IconReader, BytesBeyondTheEndReadAsZero) {
    const Bytes icon = MakeIcon({{2, 4, 32, Bytes(16, 0xFF)}});
    const std::size_t sizeKnown = 6 + 16 + 4 + 4 + 1;  // the upper bytes of its height are zero
    for (std::size_t length = 0; length < icon.size(); ++length) {
        const Bytes cut(icon.begin(), icon.begin() + static_cast<std::ptrdiff_t>(length));
        if (length < sizeKnown) {
            EXPECT_NE(ProblemOf(cut), "") << length;
            continue;
        }
        const IconEntryImage entry = Decode(cut)[0];
        EXPECT_EQ(entry.BitCount, length >= 6 + 16 + 14 + 1 ? 32 : 0) << length;
        const auto* stored = reinterpret_cast<const std::uint8_t*>(entry.Image.Pixels());
        for (std::size_t i = 0; i < 16; ++i)  // the lower row comes first in the file
            EXPECT_EQ(stored[i ^ 8], 6 + 16 + 40 + i < length ? 0xFF : 0) << length;
    }
}

TEST(IconReader, OffsetsMayPointAnywhere) {
    const Bytes icon = MakeIcon({{2, 4, 32, Bytes(16, 0xFF)}});
    for (std::uint32_t offset : {0u, 1u, 61u, 77u, 78u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        Bytes moved = icon;
        std::memcpy(moved.data() + 18, &offset, sizeof offset);
        EXPECT_NE(ProblemOf(moved), "") << offset;
    }
}

TEST(IconReader, OffersWhatHasMoreThan8Bits) {
    std::vector<Entry> entries;
    for (int bits : {8, 32, 1, 24, 9, 0, 16, -1})
        entries.push_back({1, 2, static_cast<std::int16_t>(bits), {}});
    std::vector<int> offered;
    for (const IconEntryImage& entry : OfferedEntries(Decode(MakeIcon(entries))))
        offered.push_back(entry.BitCount);
    EXPECT_THAT(offered, ElementsAre(32, 24, 9, 16));
}

TEST(IconReader, ADamagedFileIsNamed) {
    const testing::TemporaryFolder folder;
    graphics::WriteFile(folder / "b.ico", MakeIcon({}));
    for (const auto& bad : {folder / "b.ico", folder / "missing.ico"})
        EXPECT_THAT([&] { ReadIconFile(bad); },
                    ThrowsMessage<graphics::FileError>(HasSubstr(bad.string())));
}

}  // namespace
}  // namespace orbelle::formats
