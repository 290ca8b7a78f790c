#include "formats/icon_reader.h"

#include <gmock/gmock.h>

#include <climits>
#include <tuple>

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
using graphics::Argb;
using graphics::Bitmap;
using graphics::ImageError;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::PixelsOf;
using ::testing::ThrowsMessage;
using Bytes = std::vector<std::uint8_t>;

Bytes operator+(Bytes first, const Bytes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// Entries one behind the other; the directory tells nothing but where, how much and a hot spot.
Bytes MakeIcon(const std::vector<Bytes>& entries, std::uint16_t reserved = 0,
               std::uint16_t type = 1) {
    Bytes icon;
    Append<std::uint16_t>(icon, reserved);
    Append<std::uint16_t>(icon, type);
    Append<std::uint16_t>(icon, static_cast<std::uint16_t>(entries.size()));
    std::size_t offset = icon.size() + 16 * entries.size();
    for (const Bytes& entry : entries) {
        icon.insert(icon.end(), 4, 0xEE);  // what nobody reads
        Append<std::uint16_t>(icon, 3);
        Append<std::uint16_t>(icon, 0xFFFF);
        Append<std::uint32_t>(icon, static_cast<std::uint32_t>(entry.size()));
        Append<std::uint32_t>(icon, static_cast<std::uint32_t>(offset));
        offset += entry.size();
    }
    for (const Bytes& entry : entries)
        icon.insert(icon.end(), entry.begin(), entry.end());
    return icon;
}

struct Header {
    std::int32_t Width = 1;
    std::int32_t Height = 2;  // colours and mask together
    std::uint16_t Bits = 32;
    std::uint32_t Compression = 0;
    std::uint32_t ColorsUsed = 0;
    std::uint32_t Size = 40;
};

Bytes Dib(const Header& header, const Bytes& rest) {
    Bytes bytes;
    Append<std::uint32_t>(bytes, header.Size);
    Append<std::int32_t>(bytes, header.Width);
    Append<std::int32_t>(bytes, header.Height);
    Append<std::uint16_t>(bytes, 0xEEEE);
    Append<std::uint16_t>(bytes, header.Bits);
    Append<std::uint32_t>(bytes, header.Compression);
    bytes.insert(bytes.end(), 12, 0xEE);
    Append<std::uint32_t>(bytes, header.ColorsUsed);
    Append<std::uint32_t>(bytes, 0xEEEEEEEE);
    return bytes + rest;
}

std::vector<IconEntryImage> Decode(const Bytes& icon) {
    return DecodeIcon(graphics::MemorySource(icon));
}

// Of an icon with that entry alone; what is wrong with it is a failure.
std::vector<Argb> PixelsIn(const Bytes& entry) {
    const IconEntryImage image = Decode(MakeIcon({entry}))[0];
    EXPECT_EQ(image.Problem, "");
    return PixelsOf(image.Image);
}

std::string ProblemOf(const Bytes& icon) {
    try {
        return Decode(icon)[0].Problem;
    } catch (const ImageError& error) {
        return error.what();
    }
}

const Bytes kTwoColors{0x10, 0x20, 0x30, 0, 0x40, 0x50, 0x60, 0};  // #302010, #605040
const Bytes kOnePixel{0x33, 0x22, 0x11, 0xFF};

TEST(IconReader, IndexesTakeTheirColorsAndTheMaskTheirAlpha) {
    // 9 pixels: a row of 2 bytes is padded to 4, in colours and mask.
    EXPECT_THAT(PixelsIn(Dib({9, 4, 1}, kTwoColors + Bytes{0x80, 0x80, 9, 9, 0x40, 0, 9, 9} +
                                            Bytes{0x01, 0x7F, 9, 9, 0x80, 0x80, 9, 9})),
                ElementsAre(0x00302010, 0xFF605040, 0xFF302010, 0xFF302010, 0xFF302010, 0xFF302010,
                            0xFF302010, 0xFF302010, 0x00302010,  // the lower row of the file
                            0xFF605040, 0xFF302010, 0xFF302010, 0xFF302010, 0xFF302010, 0xFF302010,
                            0xFF302010, 0x00302010, 0xFF605040));
    Bytes sixteen;
    for (std::uint8_t i = 0; i < 16; ++i)
        sixteen = sixteen + Bytes{i, 0, 0, 0xFF};
    EXPECT_THAT(PixelsIn(Dib({3, 2, 4}, sixteen + Bytes{0xF5, 0x07, 0, 0, 0x40, 0, 0, 0})),
                ElementsAre(0xFF00000F, 0x00000005, 0xFF000000));
    Bytes all;
    for (int i = 0; i < 256; ++i)
        all = all + Bytes{0, static_cast<std::uint8_t>(i), 0, 0};
    EXPECT_THAT(PixelsIn(Dib({2, 2, 8}, all + Bytes{255, 7, 0, 0, 0x80, 0, 0, 0})),
                ElementsAre(0x0000FF00, 0xFF000700));
    // Fewer colours than the bits could count, and an index that has none.
    EXPECT_THAT(PixelsIn(Dib({3, 2, 8, 0, 2}, kTwoColors + Bytes{1, 2, 255, 0})),
                ElementsAre(0xFF605040, 0xFF000000, 0xFF000000));
}

TEST(IconReader, TrueColorsOf16And24BitsFollowTheMask) {
    EXPECT_THAT(PixelsIn(Dib({2, 4, 24}, {1,    2, 3, 4, 5,    6, 9, 9, 7, 8, 9, 0, 0, 0, 9, 9,  //
                                          0x80, 0, 0, 0, 0x40, 0, 0, 0})),
                ElementsAre(0xFF090807, 0x00000000, 0x00030201, 0xFF060504));
    // 5 bits a channel; 31 is 255, 16 is 132 (131.6).
    EXPECT_THAT(PixelsIn(Dib({2, 2, 16}, {0x1F, 0x7C, 0x00, 0x82, 0x40, 0, 0, 0})),
                ElementsAre(0xFFFF00FF, 0x00008400));
    // Masks behind the oldest header: 5, 6 and 5 bits.
    const Bytes masks565{0, 0xF8, 0, 0, 0xE0, 0x07, 0, 0, 0x1F, 0, 0, 0};
    EXPECT_THAT(PixelsIn(Dib({2, 2, 16, 3}, masks565 + Bytes{0, 0xF8, 0xE0, 0x07})),
                ElementsAre(0xFFFF0000, 0xFF00FF00));
    // In a longer header, with an alpha of 4 bits that is followed.
    const Bytes masks4444{0, 0x0F, 0, 0, 0xF0, 0, 0, 0, 0x0F, 0, 0, 0, 0, 0xF0, 0, 0};
    EXPECT_THAT(PixelsIn(Dib({2, 2, 16, 3, 0, 56}, masks4444 + Bytes{0, 0x8F, 0x0F, 0})),
                ElementsAre(0x88FF0000, 0x000000FF));
    // A palette besides true colours is passed over, one that can't be there is none.
    EXPECT_THAT(PixelsIn(Dib({1, 2, 24, 0, 2}, kTwoColors + Bytes{1, 2, 3, 0})),
                ElementsAre(0xFF030201));
    EXPECT_THAT(PixelsIn(Dib({1, 2, 24, 0, 0xEEEEEEEE}, {1, 2, 3, 0})), ElementsAre(0xFF030201));
}

TEST(IconReader, PixelsOf32BitsFollowTheirAlphaUnlessItIsZeroEverywhere) {
    const Bytes mask{0x80, 0, 0, 0};
    EXPECT_THAT(PixelsIn(Dib({2, 2}, Bytes{1, 2, 3, 1, 4, 5, 6, 0} + mask)),
                ElementsAre(0x01030201, 0x00060504));
    EXPECT_THAT(PixelsIn(Dib({2, 2}, Bytes{1, 2, 3, 0, 4, 5, 6, 0} + mask)),
                ElementsAre(0x00030201, 0xFF060504));
    EXPECT_THAT(PixelsIn(Dib({2, 2}, {1, 2, 3, 0, 4, 5, 6, 0})),
                ElementsAre(0xFF030201, 0xFF060504));
    // Masks of colours leave alpha the byte that is none of theirs.
    const Bytes masks{0xFF, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0};
    EXPECT_THAT(PixelsIn(Dib({2, 2, 32, 3}, masks + Bytes{1, 2, 3, 4, 5, 6, 7, 0})),
                ElementsAre(0x04010203, 0x00050607));
    // Without masks in force a long header's are not looked at.
    EXPECT_THAT(PixelsIn(Dib({1, 2, 32, 0, 0, 124}, Bytes(84, 0xEE) + Bytes{1, 2, 3, 4})),
                ElementsAre(0x04030201));
    // Top row first, the mask's as well.
    EXPECT_THAT(PixelsIn(Dib({1, -4}, {1, 2, 3, 0, 4, 5, 6, 0, 0, 0, 0, 0, 0x80, 0, 0, 0})),
                ElementsAre(0xFF030201, 0x00060504));
    // A height that does not count the mask is halved all the same.
    EXPECT_THAT(PixelsIn(Dib({2, 2}, Bytes{1, 2, 3, 4, 5, 6, 7, 8} + Bytes(8, 9))),
                ElementsAre(0x04030201, 0x08070605));
}

TEST(IconReader, AMaskEndsWithItsEntryAndPixelsWithTheFile) {
    // The next entry begins where the mask would.
    const Bytes next = Dib({1, 2}, kOnePixel);
    Bytes icon = MakeIcon({Dib({4, 2, 8, 0, 2}, kTwoColors + Bytes(4, 1)), next});
    EXPECT_THAT(PixelsOf(Decode(icon)[0].Image), ::testing::Each(0xFF605040));
    // An entry that says to be shorter than its pixels says nothing.
    icon[6 + 8] = 41;
    EXPECT_THAT(PixelsOf(Decode(icon)[0].Image),
                ElementsAre(0xFF605040, 0xFF605040, 0x00605040, 0xFF605040));  // 40 = 0b00101000...

    const Bytes whole = MakeIcon({Dib({2, 4}, Bytes(16, 0) + Bytes(8, 0xFF))});
    const std::size_t pixelsEnd = 6 + 16 + 40 + 16;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_EQ(ProblemOf(cut) == "", length >= pixelsEnd) << length;
        if (length < pixelsEnd)
            continue;
        const IconEntryImage image = Decode(cut)[0];
        for (int y = 0; y < 2; ++y)  // the lower row comes first
            EXPECT_EQ(image.Image.GetPixel(0, y) == 0, length > pixelsEnd + (y == 1 ? 0 : 4))
                << length;
    }
}

TEST(IconReader, OneBadImageDoesNotSpoilTheOthers) {
    const Bytes good = Dib({1, 2}, kOnePixel);
    const Bytes png = graphics::EncodePng(testing::FilledPicture(5, 3, 0x80123456));
    const Bytes cutPng(png.begin(), png.end() - 20);
    const std::vector<IconEntryImage> images =
        Decode(MakeIcon({Dib({1, 2}, {1, 2, 3}), good, cutPng, Bytes(60, 0xEE), png}, 0, 2));
    ASSERT_EQ(images.size(), 5u);
    const auto told = [&](std::size_t i) {
        const IconEntryImage& image = images[i];
        return std::tuple(image.Format, image.Width, image.Height, image.Bits, image.Bytes);
    };
    EXPECT_EQ(told(1), std::tuple(IconEntryFormat::Bitmap, 1, 1, 32, 44u));
    EXPECT_EQ(told(2), std::tuple(IconEntryFormat::Bad, 5, 3, 32, png.size() - 20));
    EXPECT_EQ(told(3), std::tuple(IconEntryFormat::Bad, 0, 0, 0, 60u));
    EXPECT_EQ(told(4), std::tuple(IconEntryFormat::Png, 5, 3, 32, png.size()));
    EXPECT_THAT(PixelsOf(images[4].Image), ::testing::Each(0x80123456));
    for (const IconEntryImage& image : images) {
        EXPECT_EQ(image.Hotspot, (Hotspot{3, 0xFFFF}));
        EXPECT_EQ(image.IsBad(), image.Image.IsEmpty());
        EXPECT_EQ(image.IsBad(), !image.Problem.empty());
    }
    EXPECT_EQ(Decode(MakeIcon({good}))[0].Hotspot, std::nullopt);
}

TEST(IconReader, KindsThatIconsDoNotHaveAreBad) {
    const Bytes enough(2000, 1);
    for (const int bits : {0, 2, 3, 9, 15, 33, 64, 0xFFFF})
        EXPECT_NE(ProblemOf(MakeIcon({Dib({1, 2, static_cast<std::uint16_t>(bits)}, enough)})), "");
    for (const auto& [bits, compression] :
         {std::pair(8, 1), {4, 2}, {24, 3}, {32, 4}, {32, 5}, {24, 4}, {8, 3}})
        EXPECT_NE(ProblemOf(MakeIcon({Dib({1, 2, static_cast<std::uint16_t>(bits),
                                           static_cast<std::uint32_t>(compression)},
                                          enough)})),
                  "")
            << bits << ' ' << compression;
    for (const std::uint32_t size : {0u, 11u, 39u, 0x7FFFFFFFu, 0xFFFFFFFFu})
        EXPECT_NE(ProblemOf(MakeIcon({Dib({1, 2, 32, 0, 0, size}, enough)})), "") << size;
    for (const std::uint32_t colors : {500u, 0xFFFFFFFFu})
        EXPECT_NE(ProblemOf(MakeIcon({Dib({1, 2, 8, 0, colors}, enough)})), "") << colors;
    for (const int width : {0, -1, 16385, INT_MAX, INT_MIN})
        EXPECT_NE(ProblemOf(MakeIcon({Dib({width, 2}, enough)})), "") << width;
    for (const int height : {0, 1, -1, 2 * 16385, INT_MAX, INT_MIN})
        EXPECT_NE(ProblemOf(MakeIcon({Dib({1, height}, enough)})), "") << height;
}

TEST(IconReader, WrittenIconsComeBack) {
    const Bitmap pictures[] = {testing::PictureOf({"#..", ".##"}, 0x80123456), Bitmap(256, 256),
                               testing::FilledPicture(17, 1, 0x01FFFFFF)};
    for (const IconFormat format : {IconFormat::Bmp, IconFormat::Png256, IconFormat::Png}) {
        const Bytes icon = EncodeIcon(pictures, format);
        const std::vector<IconEntryImage> entries = Decode(icon);
        ASSERT_EQ(entries.size(), 3u);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_TRUE(testing::SamePixels(entries[i].Image, pictures[i])) << i;
            const bool isPng =
                format == IconFormat::Png || (format == IconFormat::Png256 && i == 1);
            EXPECT_EQ(entries[i].Format, isPng ? IconEntryFormat::Png : IconEntryFormat::Bitmap);
        }
    }
}

TEST(IconReader, GivesAnEntryAsItStandsThere) {
    const Bytes dib = Dib({1, 2}, kOnePixel);
    const Bytes png = graphics::EncodePng(testing::FilledPicture(5, 3, 0x80123456));
    Bytes icon = MakeIcon({dib, png, png + Bytes{1, 2}});
    const auto bytesOf = [&](int i) { return EntryBytes(graphics::MemorySource(icon), i, 9999); };
    EXPECT_EQ(bytesOf(0), dib);
    EXPECT_EQ(bytesOf(1), png);
    EXPECT_EQ(bytesOf(2), (png + Bytes{1, 2}));
    EXPECT_EQ(bytesOf(-1), Bytes());
    EXPECT_EQ(bytesOf(3), Bytes());
    EXPECT_EQ(EntryBytes(graphics::MemorySource(icon), 0, dib.size()), dib);
    EXPECT_EQ(EntryBytes(graphics::MemorySource(icon), 0, dib.size() - 1), Bytes()) << "too many";
    icon[6 + 16 + 8] = 5;  // the directory knows of five bytes
    EXPECT_EQ(bytesOf(1), png);
    EXPECT_EQ(Decode(icon)[1].Problem, "");
    EXPECT_EQ(Decode(icon)[1].Bytes, 5u);
}

TEST(IconReader, RefusesWhatIsNoIcon) {
    const Bytes good = Dib({1, 2}, kOnePixel);
    const std::pair<Bytes, const char*> cases[] = {
        {{}, "the icon holds no image"},
        {MakeIcon({}), "the icon holds no image"},
        {MakeIcon({good}, 0, 0), ""},
        {MakeIcon({good}, 0, 2), ""},
        {MakeIcon({good}, 0, 3), "not a Windows icon"},
        {MakeIcon({good}, 0, 0xFFFF), "not a Windows icon"},
        {MakeIcon({good}, 1, 1), "not a Windows icon"},
        {{0, 0, 1, 0, 0xFF, 0xFF}, "the icon's directory is cut short"},
    };
    for (const auto& [icon, problem] : cases)
        EXPECT_EQ(ProblemOf(icon), problem);
    const auto isIcon = [&](std::uint16_t reserved, std::uint16_t type) {
        return IsIcon(graphics::MemorySource(MakeIcon({}, reserved, type)));
    };
    EXPECT_TRUE(isIcon(0, 1) && isIcon(0, 2));
    EXPECT_FALSE(isIcon(0, 0) || isIcon(0, 3) || isIcon(1, 1));
}

// Many entries that claim the same place take no more than one file may.
TEST(IconReader, EntriesShareWhatAFileMayTake) {
    const auto sharing = [](const Bytes& data, std::size_t count) {
        std::vector<Bytes> entries(count);
        entries.back() = data;
        Bytes icon = MakeIcon(entries);
        for (std::size_t i = 0; i < count; ++i) {
            const auto size = static_cast<std::uint32_t>(data.size());
            std::memcpy(icon.data() + 6 + 16 * i + 8, &size, sizeof size);
        }
        return Decode(icon);
    };
    const Bytes dib = Dib({1024, 2048, 1}, Bytes(8 + 128 * 1024));
    const std::vector<IconEntryImage> dibs = sharing(dib, 60);
    EXPECT_EQ(dibs[47].Problem, "");
    EXPECT_THAT(dibs[48].Problem, HasSubstr("there is room for 0 pixels"));
    // A PNG with a long chunk before its pixels: 8 times the file and a little more.
    Bytes png = graphics::EncodePng(Bitmap(1, 1));
    Bytes chunk{0, 0x10, 0, 0, 'n', 'o', 'n', 'e'};
    chunk.resize(8 + 0x100000 + 4);
    png.insert(png.begin() + 33, chunk.begin(), chunk.end());
    const std::vector<IconEntryImage> pngs = sharing(png, 12);
    EXPECT_EQ(pngs[7].Width, 1);
    EXPECT_EQ(pngs[9].Problem, "the images of the icon are too large together");
    EXPECT_EQ(sharing(Dib({1, 2}, kOnePixel), 0xFFFF).back().Problem, "");
}

TEST(IconReader, OffsetsMayPointAnywhere) {
    const Bytes icon = MakeIcon({Dib({2, 4}, Bytes(16, 0xFF))});
    for (std::uint32_t offset : {0u, 1u, 61u, 77u, 78u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        Bytes moved = icon;
        std::memcpy(moved.data() + 18, &offset, sizeof offset);
        EXPECT_NE(ProblemOf(moved), "") << offset;
    }
}

TEST(IconReader, ADamagedFileIsNamed) {
    const testing::TemporaryFolder folder;
    graphics::WriteFile(folder / "b.ico", MakeIcon({}));
    for (const auto& bad : {folder / "b.ico", folder / "missing.ico"})
        EXPECT_THAT([&] { ReadIconFile(bad); },
                    ThrowsMessage<graphics::FileError>(HasSubstr(graphics::Utf8Of(bad))));
}

}  // namespace
}  // namespace orbelle::formats
