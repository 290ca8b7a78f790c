#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
// Needs the two above.
#include <jpeglib.h>

#include "graphics/codecs/image_files.h"
#include "graphics/decoding.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

using ::testing::StartsWith;
using namespace testing;

struct JpegPicture {
    int Width = 8;
    int Height = 8;
    J_COLOR_SPACE Input = JCS_GRAYSCALE;
    J_COLOR_SPACE Stored = JCS_GRAYSCALE;
    std::vector<std::uint8_t> Samples = {};  // one pixel's fill the whole picture
    bool Progressive = false;
    bool NamesAdobe = true;  // in pictures of four inks
    FileBytes Exif = {};
};

FileBytes MakeJpeg(const JpegPicture& picture) {
    jpeg_compress_struct jpeg = {};
    jpeg_error_mgr errors;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = picture.Width;
    jpeg.image_height = picture.Height;
    jpeg.in_color_space = picture.Input;
    jpeg.input_components = picture.Input == JCS_GRAYSCALE ? 1 : picture.Input == JCS_RGB ? 3 : 4;
    jpeg_set_defaults(&jpeg);
    jpeg_set_colorspace(&jpeg, picture.Stored);
    jpeg_set_quality(&jpeg, 100, TRUE);
    if (picture.Progressive)
        jpeg_simple_progression(&jpeg);
    jpeg.write_Adobe_marker = jpeg.write_Adobe_marker && picture.NamesAdobe;
    jpeg_start_compress(&jpeg, TRUE);
    if (!picture.Exif.empty())
        jpeg_write_marker(&jpeg, JPEG_APP0 + 1, picture.Exif.data(), picture.Exif.size());
    std::vector<std::uint8_t> samples = picture.Samples;
    const std::size_t stride = std::size_t(picture.Width) * jpeg.input_components;
    while (samples.size() < stride * picture.Height)
        samples.push_back(samples[samples.size() - jpeg.input_components]);
    while (jpeg.next_scanline < jpeg.image_height) {
        JSAMPROW row = &samples[jpeg.next_scanline * stride];
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    const FileBytes file(memory, memory + size);
    std::free(memory);
    return file;
}

// Cells of 8 x 8 pixels, three across and two down: grey levels that spell abc / def.
JpegPicture Letters() {
    JpegPicture picture = {.Width = 24, .Height = 16};
    for (int i = 0; i < 24 * 16; ++i)
        picture.Samples.push_back(static_cast<std::uint8_t>((i / 24 / 8 * 3 + i % 24 / 8) * 50));
    return picture;
}

std::string Spell(const Bitmap& image) {
    std::string text;
    for (int y = 4; y < image.Height(); y += 8) {
        text += text.empty() ? "" : "/";
        for (int x = 4; x < image.Width(); x += 8)
            text += static_cast<char>('a' + (BlueOf(*image.GetPixel(x, y)) + 25) / 50);
    }
    return text;
}

// One directory with an entry before the orientation.
FileBytes MakeExif(int orientation, bool bigEndian) {
    const auto value = static_cast<std::uint8_t>(orientation);
    if (bigEndian)
        return {'E', 'x', 'i', 'f', 0, 0, 'M', 'M', 0, 42, 0, 0, 0, 8, 0, 2, 1, 0,     0, 3,
                0,   0,   0,   1,   0, 5, 0,   0,   1, 18, 0, 3, 0, 0, 0, 1, 0, value, 0, 0};
    return {'E', 'x', 'i', 'f', 0, 0, 'I', 'I', 42, 0, 8, 0, 0, 0, 2, 0, 0,     1, 3, 0,
            1,   0,   0,   0,   5, 0, 0,   0,   18, 1, 3, 0, 1, 0, 0, 0, value, 0, 0, 0};
}

// No channel is off by more.
void ExpectNear(const Bitmap& image, const Bitmap& expected, int tolerance) {
    ASSERT_EQ(image.Width(), expected.Width());
    ASSERT_EQ(image.Height(), expected.Height());
    for (int i = 0; i < image.Width() * image.Height(); ++i)
        for (int channel : {kBlue, kGreen, kRed, kAlpha})
            ASSERT_NEAR(image.Pixels()[i] >> channel & 0xFF, expected.Pixels()[i] >> channel & 0xFF,
                        tolerance)
                << i;
}

TEST(JpegDecoder, ReadsEveryColorSpaceAsOpaque) {
    const struct {
        const char* Name;
        JpegPicture Picture;
        Argb Color;
    } kCases[] = {
        {"grey", {.Samples = {77}}, 0xFF4D4D4D},
        {"YCbCr", {9, 7, JCS_RGB, JCS_YCbCr, {200, 100, 50}}, 0xFFC86432},
        {"progressive", {9, 7, JCS_RGB, JCS_YCbCr, {200, 100, 50}, true}, 0xFFC86432},
        {"RGB", {9, 7, JCS_RGB, JCS_RGB, {200, 100, 50}}, 0xFFC86432},
        // 250 x 204 / 255 = 200 and so on
        {"paper of four inks", {9, 7, JCS_CMYK, JCS_CMYK, {250, 125, 50, 204}}, 0xFFC86428},
        {"the same as YCCK", {9, 7, JCS_CMYK, JCS_YCCK, {250, 125, 50, 204}}, 0xFFC86428},
        {"ink", {9, 7, JCS_CMYK, JCS_CMYK, {5, 130, 205, 51}, false, false}, 0xFFC86428},
    };
    for (const auto& [name, picture, color] : kCases) {
        SCOPED_TRACE(name);
        // Rounding to YCbCr and back may cost 2 levels.
        ExpectNear(DecodeImage(MakeJpeg(picture)),
                   FilledPicture(picture.Width, picture.Height, color), 2);
    }
}

TEST(JpegDecoder, TurnsPicturesUpright) {
    const std::string kUpright[] = {"abc/def",  "abc/def",  "cba/fed",  "fed/cba",  "def/abc",
                                    "ad/be/cf", "da/eb/fc", "fc/eb/da", "cf/be/ad", "abc/def"};
    for (bool bigEndian : {false, true}) {
        for (int orientation = 0; orientation < 10; ++orientation) {
            JpegPicture picture = Letters();
            picture.Exif = MakeExif(orientation, bigEndian);
            EXPECT_EQ(Spell(DecodeImage(MakeJpeg(picture))), kUpright[orientation]) << orientation;
        }
    }
    JpegPicture picture = Letters();
    for (picture.Exif = MakeExif(6, true); picture.Exif.size() > 37; picture.Exif.pop_back())
        EXPECT_EQ(Spell(DecodeImage(MakeJpeg(picture))), "da/eb/fc");
    for (; !picture.Exif.empty(); picture.Exif.pop_back())  // now without the value
        EXPECT_EQ(Spell(DecodeImage(MakeJpeg(picture))), "abc/def");
}

// Large enough for its coefficients to be given back before the last row is made.
TEST(JpegDecoder, ScansComeTogetherInLargePictures) {
    JpegPicture picture = {.Width = 4096, .Height = 4200};
    picture.Samples.resize(std::size_t{4096} * 4200);
    for (std::size_t i = 0; i < picture.Samples.size(); ++i)
        picture.Samples[i] = static_cast<std::uint8_t>(i / 4096 / 20 + i % 4096 / 100);
    const Bitmap plain = DecodeImage(MakeJpeg(picture));
    picture.Progressive = true;
    EXPECT_TRUE(testing::SamePixels(DecodeImage(MakeJpeg(picture)), plain));
}

TEST(JpegDecoder, HeadersEnd) {
    FileBytes file = {0xFF, 0xD8};
    for (int i = 0; i < 520; ++i) {
        file.insert(file.end(), {0xFF, 0xE1, 0xFF, 0xFF});
        file.resize(file.size() + 0xFFFD);
    }
    EXPECT_THAT(ProblemOf(file), ::testing::HasSubstr("its header is too long"));
}

TEST(JpegDecoder, CutOrDamagedFilesThrow) {
    for (bool progressive : {false, true}) {
        JpegPicture picture = Letters();
        picture.Progressive = progressive;
        picture.Exif = MakeExif(3, false);
        const FileBytes file = MakeJpeg(picture);
        ExpectCutsToThrow(file, file.size() - 2);  // only the end marker may be missing
        ExpectToSurviveDamage(file);
        EXPECT_THAT(ProblemOf({file.begin(), file.end() - 10}),
                    StartsWith("the JPEG picture is cut short or damaged: "));
    }
}

TEST(JpegDecoder, RefusesSizesAndScansThatOnlyCostTime) {
    const JpegPicture picture = {.Samples = {1}, .Progressive = true};
    const FileBytes good = MakeJpeg(picture);
    const FileBytes frameMark = {0xFF, 0xC2}, scanMark = {0xFF, 0xDA};
    const auto frame =
        std::search(good.begin(), good.end(), frameMark.begin(), frameMark.end()) - good.begin();
    const auto withSize = [&](int width, int height) {
        FileBytes file = good;
        for (auto [at, value] : {std::pair{5, height}, {7, width}}) {
            file[frame + at] = static_cast<std::uint8_t>(value >> 8);
            file[frame + at + 1] = static_cast<std::uint8_t>(value);
        }
        return file;
    };
    EXPECT_THAT(ProblemOf(withSize(65500, 65500)),
                StartsWith("the picture claims 65500 x 65500 pixels, more than"));
    EXPECT_EQ(ProblemOf(withSize(16384, 3072)),
              "the JPEG picture is cut short or damaged: too little data for its size");

    const auto lastScan = std::find_end(good.begin(), good.end(), scanMark.begin(), scanMark.end());
    const FileBytes scan(lastScan, good.end() - 2);
    FileBytes file = good;
    for (int i = 0; i < 200; ++i)
        file.insert(file.end() - 2, scan.begin(), scan.end());
    EXPECT_EQ(ProblemOf(file),
              "the JPEG picture is cut short or damaged: it has too many scans for its size");
}

// Every pixel another colour, with hard edges between them.
Bitmap Checks(int width, int height) {
    constexpr Argb kColors[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF,
                                0xFF000000, 0xFFFFFF00, 0xFF806040};
    Bitmap image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.SetPixel(x, y, kColors[(x + 3 * y) % 7]);
    return image;
}

TEST(JpegEncoder, EveryPixelKeepsItsColor) {
    for (const auto& [width, height] : {std::pair(1, 1), {7, 9}, {16, 16}, {33, 17}}) {
        const Bitmap image = Checks(width, height);
        ExpectNear(DecodeImage(EncodeJpeg(image, 99)), image, 6);
    }
}

TEST(JpegEncoder, TheFileIsBaselineJfifAt96DpiWithFullColors) {
    FileBytes file = EncodeJpeg(Checks(300, 200), 99);
    // Baseline frame: 8 bits, 200 x 300, three components with one sample per pixel each.
    const FileBytes frame = {0xFF, 0xC0, 0, 17, 8,    0, 200, 1,    44, 3,
                             1,    0x11, 0, 2,  0x11, 1, 3,   0x11, 1};
    EXPECT_NE(std::search(file.begin(), file.end(), frame.begin(), frame.end()), file.end());
    file.resize(20);
    EXPECT_EQ(file, (FileBytes{0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F',
                               0,    1,    1,    1,    0, 96, 0,   96,  0,   0}));
}

TEST(JpegEncoder, AlphaIsDroppedAndQualityKeptInRange) {
    const Bitmap solid = FilledPicture(8, 8, 0xFF336699);
    EXPECT_EQ(EncodeJpeg(FilledPicture(8, 8, 0x00336699), 99), EncodeJpeg(solid, 99));
    EXPECT_EQ(EncodeJpeg(solid, -5), EncodeJpeg(solid, 1));
    EXPECT_EQ(EncodeJpeg(solid, 1000), EncodeJpeg(solid, 100));
    EXPECT_TRUE(EncodeJpeg(Bitmap(), 99).empty());
}

}  // namespace
}  // namespace orbelle::graphics
