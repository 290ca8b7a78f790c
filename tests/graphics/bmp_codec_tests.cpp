#include <gmock/gmock.h>

#include "graphics/codecs/image_files.h"
#include "graphics/decoding.h"
#include "graphics/little_endian.h"

namespace orbelle::graphics {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr Argb kRed = 0xFFFF0000;
constexpr Argb kGreen = 0xFF00FF00;
constexpr Argb kBlue = 0xFF0000FF;
constexpr Argb kBlack = 0xFF000000;

struct BmpPicture {
    std::uint32_t HeaderBytes = 40;
    std::int32_t Width = 1;
    std::int32_t Height = 1;
    unsigned Bits = 24;
    std::uint32_t Compression = 0;
    std::vector<std::uint32_t> Masks = {};  // in the header, or after one of 40 bytes
    std::vector<Argb> Palette = {};
    FileBytes Data = {};
};

FileBytes MakeBmp(const BmpPicture& picture) {
    const bool core = picture.HeaderBytes == 12;
    FileBytes file = {'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    Append<std::uint32_t>(file, picture.HeaderBytes);
    for (std::int32_t side : {picture.Width, picture.Height}) {
        Append<std::int32_t>(file, side);
        file.resize(file.size() - (core ? 2 : 0));
    }
    Append<std::uint16_t>(file, 1);
    Append<std::uint16_t>(file, picture.Bits);
    if (!core) {
        Append<std::uint32_t>(file, picture.Compression);
        file.resize(file.size() + 12);  // size of the data and resolution
        Append<std::uint64_t>(file, picture.Palette.size());
    }
    for (std::uint32_t mask : picture.Masks)
        Append<std::uint32_t>(file, mask);
    file.resize(std::max<std::size_t>(file.size(), 14 + picture.HeaderBytes));
    for (Argb color : picture.Palette) {
        Append<Argb>(file, color & 0x00FFFFFF);
        file.resize(file.size() - (core ? 1 : 0));
    }
    file[10] = static_cast<std::uint8_t>(file.size());
    file.insert(file.end(), picture.Data.begin(), picture.Data.end());
    return file;
}

TEST(BmpDecoder, ReadsEveryKind) {
    const std::vector<Argb> kColors = {kRed, kGreen, kBlue};
    const std::vector<std::uint32_t> k565 = {0xF800, 0x07E0, 0x001F};
    const std::vector<std::uint32_t> kArgb = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
    const std::vector<std::uint32_t> kAbgr = {0xFF, 0xFF00, 0xFF0000, 0xFF000000};
    const struct {
        const char* Name;
        BmpPicture Picture;
        std::vector<Argb> Pixels;
    } kCases[] = {
        {"1 bit, bottom-up",
         {40, 2, 2, 1, 0, {}, {kRed, kGreen}, {0b01000000, 0, 0, 0, 0b10000000, 0, 0, 0}},
         {kGreen, kRed, kRed, kGreen}},
        {"4 bits, an index beyond the palette",
         {40, 3, 1, 4, 0, {}, kColors, {0x20, 0x30, 0, 0}},
         {kBlue, kRed, kBlack}},
        {"8 bits, top-down",
         {40, 1, -2, 8, 0, {}, kColors, {1, 0, 0, 0, 2, 0, 0, 0}},
         {kGreen, kBlue}},
        {"8 bits, 12-byte header", {12, 2, 1, 8, 0, {}, kColors, {2, 1, 0, 0}}, {kBlue, kGreen}},
        {"16 bits", {40, 2, 1, 16, 0, {}, {}, {0x03, 0x7C, 0xE0, 0x83}}, {0xFFFF0019, kGreen}},
        {"16 bits, own masks",
         {40, 2, 1, 16, 3, k565, {}, {0x20, 0x08, 0xFF, 0xFF}},
         {0xFF080400, 0xFFFFFFFF}},
        {"24 bits, no padding in the last row",
         {40, 1, 2, 24, 0, {}, {}, {1, 2, 3, 0, 4, 5, 6}},
         {0xFF060504, 0xFF030201}},
        {"32 bits", {40, 1, 1, 32, 0, {}, {}, {1, 2, 3, 0}}, {0xFF030201}},
        {"32 bits, three masks",
         {40, 1, 1, 32, 3, {0xFF, 0xFF00, 0xFF0000}, {}, {1, 2, 3, 4}},
         {0xFF010203}},
        {"32 bits, four masks", {40, 1, 1, 32, 6, kAbgr, {}, {1, 2, 3, 4}}, {0x04010203}},
        {"32 bits, masks of 10 bits",
         {40, 1, 1, 32, 3, {0x3FF00000, 0xFFC00, 0x3FF}, {}, {0xFF, 0x03, 0xF0, 0x1F}},
         {0xFF7F00FF}},
        {"32 bits, version 5 with alpha",
         {124, 1, 1, 32, 0, kArgb, {}, {1, 2, 3, 0}},
         {0x00030201}},
        {"32 bits, version 5 without", {124, 1, 1, 32, 0, {}, {}, {1, 2, 3, 0}}, {0xFF030201}},
        {"32 bits, version 5 and masks", {108, 1, 1, 32, 3, kAbgr, {}, {1, 2, 3, 4}}, {0x04010203}},
        {"run-length, 8 bits: run, literals, jump, a run beyond the row",
         {40, 4, 3, 8, 1, {}, kColors, {2, 1, 0, 0, 0, 3, 1, 2, 1, 0, 0, 2, 0, 1, 9, 2, 0, 1}},
         {kRed, kRed, kRed, kBlue, kGreen, kBlue, kGreen, kRed, kGreen, kGreen, kRed, kRed}},
        {"run-length, 4 bits",
         {40, 5, 2, 4, 2, {}, kColors, {3, 0x12, 0, 0, 0, 5, 0x01, 0x20, 0x10, 0, 0, 1}},
         {kRed, kGreen, kBlue, kRed, kGreen, kGreen, kBlue, kGreen, kRed, kRed}},
    };
    for (const auto& [name, picture, pixels] : kCases) {
        SCOPED_TRACE(name);
        const FileBytes file = MakeBmp(picture);
        EXPECT_EQ(PixelsOf(DecodeImage(file)), pixels);
        ExpectCutsToThrow(file, file.size() - 3);  // the padding of the last row
        ExpectToSurviveDamage(file);
    }
}

TEST(BmpDecoder, RefusesWhatItCannotHold) {
    const struct {
        BmpPicture Picture;
        std::string Problem;
    } kCases[] = {
        {{40, 100000, 100000}, "the picture claims 100000 x 100000 pixels, more than"},
        {{40, 1, INT32_MIN}, "the picture claims 1 x 2147483648 pixels"},
        {{40, -5, 3}, "the picture claims a size of -5 x 3 pixels"},
        {{40, 16384, 3072},
         "the BMP picture is cut short or damaged: too little data for its size"},
        {{16, 1, 1}, "the BMP picture is cut short or damaged: unknown header"},
        {{40, 1, 1, 2}, "the BMP picture is of a kind that is not supported"},
        {{40, 1, 1, 8, 2}, "the BMP picture is of a kind that is not supported"},
        {{40, 1, 1, 24, 4}, "the BMP picture is of a kind that is not supported"},
        {{64, 1, 1, 16, 3}, "the BMP picture is of a kind that is not supported"},
        {{40, 1, 1, 16, 3, {5, 2, 8}, {}, {0, 0}}, "the BMP picture is cut short or damaged"},
    };
    for (const auto& [picture, problem] : kCases)
        EXPECT_THAT(ProblemOf(MakeBmp(picture)), StartsWith(problem));

    FileBytes file = MakeBmp({.Data = {1, 2, 3}});
    file[10] = 20;  // inside the header
    EXPECT_THAT(ProblemOf(file), HasSubstr("the pixels lie outside the file"));
    file[10] = 0;  // left out
    EXPECT_EQ(PixelsOf(DecodeImage(file)), std::vector<Argb>{0xFF030201});
}

TEST(BmpEncoder, Writes24BitsBottomUp) {
    Bitmap image(1, 2);
    image.SetPixel(0, 0, 0x00332211);
    image.SetPixel(0, 1, 0xFF665544);
    const FileBytes expected = {
        'B',  'M',  62,   0, 0,    0,    0,    0, 0, 0, 54, 0, 0, 0,         // file header
        40,   0,    0,    0, 1,    0,    0,    0, 2, 0, 0,  0, 1, 0, 24, 0,  // sizes
        0,    0,    0,    0, 8,    0,    0,    0,                            // plain, 8 bytes
        0xC4, 0x0E, 0,    0, 0xC4, 0x0E, 0,    0, 0, 0, 0,  0, 0, 0, 0,  0,  // 3780, no palette
        0x44, 0x55, 0x66, 0, 0x11, 0x22, 0x33, 0};
    EXPECT_EQ(EncodeBmp(image), expected);
    EXPECT_EQ(PixelsOf(DecodeImage(expected)), (std::vector<Argb>{0xFF332211, 0xFF665544}));
    EXPECT_TRUE(EncodeBmp({}).empty());
}

}  // namespace
}  // namespace orbelle::graphics
