// The colours that PNG and JPEG files state, on their way to sRGB.
#include <jpeglib.h>
#include <lcms2.h>

#include <bit>
#include <cmath>
#include <cstdlib>

#include "graphics/checksum.h"
#include "graphics/codecs/image_codecs.h"
#include "graphics/decoding.h"
#include "profiles.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

void AppendBig(FileBytes& file, std::uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        file.push_back(static_cast<std::uint8_t>(number >> shift));
}

FileBytes Chunk(const std::string& name, const FileBytes& contents) {
    FileBytes named(name.begin(), name.end());
    named.insert(named.end(), contents.begin(), contents.end());
    FileBytes chunk;
    AppendBig(chunk, static_cast<std::uint32_t>(contents.size()));
    chunk.insert(chunk.end(), named.begin(), named.end());
    AppendBig(chunk, Crc32(named));
    return chunk;
}

FileBytes Numbers(std::initializer_list<std::uint32_t> numbers) {
    FileBytes contents;
    for (const std::uint32_t number : numbers)
        AppendBig(contents, number);
    return contents;
}

FileBytes Gamma(std::uint32_t hundredThousandths) {
    return Chunk("gAMA", Numbers({hundredThousandths}));
}

// Adobe RGB's corners.
FileBytes Primaries() {
    return Chunk("cHRM", Numbers({31270, 32900, 64000, 33000, 21000, 71000, 15000, 6000}));
}

// The chunk's packed contents as one stored block: nothing of a packer's is needed for that.
FileBytes ProfileChunk(const FileBytes& profile) {
    FileBytes packed = {'x', 0, 0, 0x78, 0x01};
    std::uint32_t a = 1, b = 0;
    for (std::size_t at = 0; at < profile.size();) {
        const std::size_t count = std::min<std::size_t>(profile.size() - at, 0xFFFF);
        const auto length = static_cast<unsigned>(count);
        packed.push_back(at + count == profile.size() ? 1 : 0);
        for (const unsigned number : {length, ~length})
            for (int shift = 0; shift < 16; shift += 8)
                packed.push_back(static_cast<std::uint8_t>(number >> shift));
        for (const std::size_t end = at + count; at < end; ++at) {
            packed.push_back(profile[at]);
            a = (a + profile[at]) % 65521;
            b = (b + a) % 65521;
        }
    }
    AppendBig(packed, b << 16 | a);
    return Chunk("iCCP", packed);
}

// The picture's PNG with chunks behind its header.
FileBytes With(const Bitmap& picture, const std::vector<FileBytes>& chunks) {
    FileBytes file = EncodePng(picture);
    auto place = file.begin() + 33;
    for (const FileBytes& chunk : chunks)
        place = file.insert(place, chunk.begin(), chunk.end()) +
                static_cast<std::ptrdiff_t>(chunk.size());
    return file;
}

Bitmap OnePixel(Argb color) {
    return testing::FilledPicture(1, 1, color);
}

TEST(ColorsOfPng, BecomeSrgb) {
    const FileBytes adobe = ProfileChunk(testing::AdobeRgbProfile());
    const FileBytes srgb = ProfileChunk(testing::SrgbProfile());
    const FileBytes sRgbChunk = Chunk("sRGB", {0});
    FileBytes brokenProfile = testing::AdobeRgbProfile();
    brokenProfile.resize(200);
    FileBytes wrongSum = Gamma(100000);
    wrongSum.back() ^= 1;
    constexpr Argb kColor = 0x8078C83C;      // 120, 200, 60
    constexpr Argb kFromAdobe = 0x8033C925;  // 51, 201, 37
    const struct {
        const char* What;
        std::vector<FileBytes> Chunks;
        Argb From;
        Argb To;
    } kCases[] = {
        {"nothing", {}, kColor, kColor},
        {"a profile", {adobe}, kColor, kFromAdobe},
        {"invisible as well", {adobe}, 0x0078C83C, 0x0033C925},
        {"corners and gamma of the same", {Gamma(45471), Primaries()}, kColor, kFromAdobe},
        {"light itself", {Gamma(100000)}, 0xFF808080, 0xFFBCBCBC},
        {"light itself, ends", {Gamma(100000)}, 0x80FF0000, 0x80FF0000},
        {"gamma 1.8", {Gamma(55556)}, 0xFF808080, 0xFF929292},
        {"sRGB's gamma", {Gamma(45455)}, 0xFF0A0B0C, 0xFF0A0B0C},
        {"sRGB counts before gamma", {Gamma(100000), sRgbChunk}, kColor, kColor},
        {"a profile before all", {sRgbChunk, Gamma(100000), adobe}, kColor, kFromAdobe},
        {"a profile of sRGB", {srgb, Gamma(100000)}, kColor, kColor},
        {"a broken profile", {ProfileChunk(brokenProfile)}, kColor, kColor},
        {"a broken one before gamma",
         {ProfileChunk(brokenProfile), Gamma(100000)},
         0xFF808080,
         0xFFBCBCBC},
        {"a damaged chunk", {wrongSum}, kColor, kColor},
        {"no gamma at all", {Gamma(0)}, kColor, kColor},
        {"no corners at all", {Chunk("cHRM", Numbers({0, 0, 0, 0, 0, 0, 0, 0}))}, kColor, kColor},
        {"a profile of greys", {ProfileChunk(testing::GreyProfile(1.0))}, kColor, kColor},
    };
    for (const auto& [what, chunks, from, to] : kCases) {
        SCOPED_TRACE(what);
        const FileBytes file = With(OnePixel(from), chunks);
        EXPECT_EQ(DecodeImage(file).GetPixel(0, 0), to);
        PixelBudget budget;
        EXPECT_EQ(DecodeStoredImage(MemorySource(file), budget).GetPixel(0, 0), from);
    }
}

// To the byte, whatever a profile of sRGB rounds.
TEST(ColorsOfPng, StayWhereTheyAreSrgb) {
    std::mt19937 random(7);
    const Bitmap picture = testing::RandomPicture(random, 300, 200);
    for (const auto& chunks : std::vector<std::vector<FileBytes>>{
             {ProfileChunk(testing::SrgbProfile())},
             {Gamma(45455),
              Chunk("cHRM", Numbers({31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000}))}})
        EXPECT_TRUE(testing::SamePixels(DecodeImage(With(picture, chunks)), picture));
}

// A table says of its own points what the formula says that it was made by.
TEST(ColorsOfPng, FollowTables) {
    Bitmap picture(256, 16);
    for (int x = 0; x < 256; ++x)
        for (int y = 0; y < 16; ++y)
            picture.SetPixel(x, y, MakeArgb(255 - y, x / 16 * 17, x % 16 * 17, y * 17));
    const auto converted = [&](const FileBytes& profile) {
        return DecodeImage(With(picture, {ProfileChunk(profile)}));
    };
    const Bitmap byTable = converted(testing::AdobeRgbTableProfile()),
                 byFormula = converted(testing::AdobeRgbProfile());
    for (int x = 0; x < 256; ++x)
        for (int y = 0; y < 16; ++y)
            for (int shift = 0; shift < 32; shift += 8)
                ASSERT_NEAR(static_cast<int>(*byTable.GetPixel(x, y) >> shift & 0xFF),
                            static_cast<int>(*byFormula.GetPixel(x, y) >> shift & 0xFF), 1)
                    << std::hex << *picture.GetPixel(x, y);
}

TEST(ColorsOfPng, SurviveDamage) {
    const FileBytes profile = ProfileChunk(testing::AdobeRgbProfile());
    ExpectToSurviveDamage(With(OnePixel(0xFF78C83C), {profile, Gamma(50000), Primaries()}));
    const FileBytes whole = testing::AdobeRgbProfile();
    for (std::size_t at = 0; at < whole.size(); ++at) {
        FileBytes damaged = whole;
        damaged[at] ^= 0xFF;
        EXPECT_EQ(ProblemOf(With(OnePixel(0xFF78C83C), {ProfileChunk(damaged)})), "") << at;
    }
}

struct Jpeg {
    J_COLOR_SPACE Space;
    std::array<std::uint8_t, 4> Color;
    bool IsOfAdobe = false;
    FileBytes Profile = {};
};

// 8 x 8 pixels of one colour.
FileBytes MakeJpeg(const Jpeg& picture) {
    jpeg_compress_struct jpeg = {};
    jpeg_error_mgr errors = {};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &bytes, &size);
    jpeg.image_width = jpeg.image_height = 8;
    jpeg.in_color_space = picture.Space;
    jpeg.input_components = picture.Space == JCS_CMYK ? 4 : picture.Space == JCS_RGB ? 3 : 1;
    jpeg_set_defaults(&jpeg);
    jpeg_set_colorspace(&jpeg, picture.Space);
    jpeg_set_quality(&jpeg, 100, TRUE);
    jpeg.write_Adobe_marker = picture.IsOfAdobe ? TRUE : FALSE;
    jpeg_start_compress(&jpeg, TRUE);
    if (!picture.Profile.empty())
        jpeg_write_icc_profile(&jpeg, picture.Profile.data(),
                               static_cast<unsigned>(picture.Profile.size()));
    FileBytes row;
    for (int x = 0; x < 8; ++x)
        row.insert(row.end(), picture.Color.begin(), picture.Color.begin() + jpeg.input_components);
    for (int y = 0; y < 8; ++y) {
        JSAMPROW start = row.data();
        jpeg_write_scanlines(&jpeg, &start, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    const FileBytes file(bytes, bytes + size);
    std::free(bytes);
    return file;
}

TEST(ColorsOfJpeg, BecomeSrgb) {
    const FileBytes adobe = testing::AdobeRgbProfile(), inks = testing::InkProfile();
    FileBytes inParts = adobe;
    inParts.resize(70000);  // more than a marker holds; the profile tells its own size
    const struct {
        const char* What;
        Jpeg Picture;
        Argb Color;
    } kCases[] = {
        {"a profile", {JCS_RGB, {120, 200, 60}, true, adobe}, 0xFF33C925},
        {"in parts", {JCS_RGB, {120, 200, 60}, true, inParts}, 0xFF33C925},
        {"greys", {JCS_GRAYSCALE, {128}, false, testing::GreyProfile(1.0)}, 0xFFBCBCBC},
        {"greys of a profile of colours", {JCS_GRAYSCALE, {128}, false, adobe}, 0xFF808080},
        {"inks without a profile", {JCS_CMYK, {0, 0, 255, 0}}, 0xFFFFFF00},
        {"inks", {JCS_CMYK, {0, 0, 255, 0}, false, inks}, 0xFF00FFFF},
        {"paper", {JCS_CMYK, {255, 255, 0, 255}, true, inks}, 0xFF00FFFF},
    };
    for (const auto& [what, picture, color] : kCases) {
        const Argb found = *DecodeImage(MakeJpeg(picture)).GetPixel(3, 3);
        for (int shift = 0; shift < 32; shift += 8)
            EXPECT_NEAR(static_cast<int>(found >> shift & 0xFF),
                        static_cast<int>(color >> shift & 0xFF), 1)
                << what << " " << std::hex << found;
    }
}

}  // namespace
}  // namespace orbelle::graphics
