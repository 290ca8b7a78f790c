#include <gmock/gmock.h>
#include <png.h>
#include <zlib.h>

#include "graphics/checksum.h"
#include "graphics/codecs/image_files.h"
#include "graphics/codecs/png_rows.h"
#include "graphics/decoding.h"
#include "support/instruction_sets.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

struct PngPicture {
    int Width;
    int Height;
    int Depth;
    int ColorType;
    std::vector<std::uint8_t> Rows;  // as the file holds them
    std::vector<png_color> Palette = {};
    std::vector<std::uint8_t> PaletteAlpha = {};
    png_color_16p TransparentColor = nullptr;
    bool Interlaced = false;
};

// With `Rows` empty the file ends where the pixels would begin.
FileBytes MakePng(const PngPicture& picture) {
    FileBytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    const auto append = [](png_structp p, png_bytep data, std::size_t count) {
        auto* to = static_cast<FileBytes*>(png_get_io_ptr(p));
        to->insert(to->end(), data, data + count);
    };
    png_set_write_fn(png, &file, append, nullptr);
    png_set_IHDR(png, info, picture.Width, picture.Height, picture.Depth, picture.ColorType,
                 picture.Interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, 0, 0);
    png_set_pHYs(png, info, 1000, 2000, PNG_RESOLUTION_METER);
    if (!picture.Palette.empty())
        png_set_PLTE(png, info, picture.Palette.data(), static_cast<int>(picture.Palette.size()));
    if (!picture.PaletteAlpha.empty() || picture.TransparentColor)
        png_set_tRNS(png, info, picture.PaletteAlpha.data(),
                     static_cast<int>(picture.PaletteAlpha.size()), picture.TransparentColor);
    png_write_info(png, info);
    if (picture.Rows.empty()) {
        file.insert(file.end(), {0, 0, 0, 0, 'I', 'D', 'A', 'T'});
    } else {
        const std::size_t stride = picture.Rows.size() / picture.Height;
        std::vector<png_bytep> rows;
        for (int y = 0; y < picture.Height; ++y)
            rows.push_back(const_cast<png_bytep>(picture.Rows.data() + y * stride));
        png_write_image(png, rows.data());
        png_write_end(png, info);
    }
    png_destroy_write_struct(&png, &info);
    return file;
}

TEST(PngDecoder, ReadsAllColorTypesAndDepths) {
    const std::vector<png_color> kPalette = {{0x10, 0x20, 0x30}, {0x40, 0x50, 0x60}, {1, 2, 3}};
    const std::vector<png_color> kTwoColors(kPalette.begin(), kPalette.begin() + 2);
    png_color_16 grey2{0, 0, 0, 0, 2}, grey16{0, 0, 0, 0, 0x1234}, rgb{0, 1, 2, 3, 0};
    const struct {
        PngPicture Picture;
        std::vector<Argb> Pixels;
    } kCases[] = {
        {{3, 1, 1, PNG_COLOR_TYPE_GRAY, {0b10100000}}, {0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF}},
        {{2, 1, 2, PNG_COLOR_TYPE_GRAY, {0b01100000}, {}, {}, &grey2}, {0xFF555555, 0x00AAAAAA}},
        {{2, 1, 4, PNG_COLOR_TYPE_GRAY, {0x2F}}, {0xFF222222, 0xFFFFFFFF}},
        {{2, 1, 8, PNG_COLOR_TYPE_GRAY, {0x2F, 0x80}}, {0xFF2F2F2F, 0xFF808080}},
        {{2, 1, 16, PNG_COLOR_TYPE_GRAY, {0x12, 0x34, 0x12, 0xFF}, {}, {}, &grey16},
         {0x00121212, 0xFF121212}},
        {{1, 2, 8, PNG_COLOR_TYPE_RGB, {1, 2, 3, 1, 2, 4}, {}, {}, &rgb}, {0x00010203, 0xFF010204}},
        {{1, 1, 16, PNG_COLOR_TYPE_RGB, {1, 0xFF, 2, 0x80, 3, 0x7F}}, {0xFF010203}},
        {{2, 1, 1, PNG_COLOR_TYPE_PALETTE, {0b01000000}, kTwoColors}, {0xFF102030, 0xFF405060}},
        {{3, 1, 2, PNG_COLOR_TYPE_PALETTE, {0b00011000}, kPalette, {0, 0x80}},
         {0x00102030, 0x80405060, 0xFF010203}},
        {{2, 1, 4, PNG_COLOR_TYPE_PALETTE, {0x21}, kPalette}, {0xFF010203, 0xFF405060}},
        {{2, 1, 8, PNG_COLOR_TYPE_PALETTE, {0, 2}, kPalette, {7}}, {0x07102030, 0xFF010203}},
        {{1, 1, 8, PNG_COLOR_TYPE_GRAY_ALPHA, {0x2F, 0}}, {0x002F2F2F}},
        {{1, 1, 16, PNG_COLOR_TYPE_GRAY_ALPHA, {0x2F, 0xFF, 0x7F, 0xFF}}, {0x7F2F2F2F}},
        {{2, 1, 8, PNG_COLOR_TYPE_RGB_ALPHA, {1, 2, 3, 0, 4, 5, 6, 0xFE}},
         {0x00010203, 0xFE040506}},
        {{1, 1, 16, PNG_COLOR_TYPE_RGB_ALPHA, {1, 0xFF, 2, 0, 3, 0, 4, 0xFF}}, {0x04010203}},
    };
    for (const auto& [picture, pixels] : kCases) {
        SCOPED_TRACE(picture.ColorType * 100 + picture.Depth);
        const FileBytes file = MakePng(picture);
        EXPECT_EQ(PixelsOf(DecodeImage(file)), pixels);
        ExpectToSurviveDamage(file);
    }
}

TEST(PngDecoder, RefusesSizesBeforeTakingMemory) {
    EXPECT_THAT(ProblemOf(MakePng({100000, 100000, 8, PNG_COLOR_TYPE_RGB, {}})),
                StartsWith("the picture claims 100000 x 100000 pixels, more than"));
    EXPECT_EQ(ProblemOf(MakePng({16384, 3072, 8, PNG_COLOR_TYPE_RGB, {}})),
              "the PNG picture is cut short or damaged: too little data for its size");
}

TEST(PngDecoder, CutOrDamagedFilesThrow) {
    const int kSide = 11;  // interlaced: all seven passes, with uneven ends
    PngPicture picture{kSide, kSide, 8, PNG_COLOR_TYPE_RGB, {}};
    std::vector<Argb> expected;
    for (int i = 0; i < kSide * kSide; ++i) {
        picture.Rows.insert(picture.Rows.end(), {std::uint8_t(i), std::uint8_t(2 * i), 7});
        expected.push_back(MakeArgb(255, i, 2 * i & 0xFF, 7));
    }
    for (bool interlaced : {false, true}) {
        picture.Interlaced = interlaced;
        FileBytes file = MakePng(picture);
        EXPECT_EQ(PixelsOf(DecodeImage(file)), expected);
        ExpectCutsToThrow(file, file.size() - 12);  // only the end chunk may be missing
        ExpectToSurviveDamage(file);
        file[file.size() - 20] ^= 1;  // in the pixels
        EXPECT_THAT(ProblemOf(file), StartsWith("the PNG picture is cut short or damaged: "));
    }
}

TEST(PngCodec, RoundTripsKeepEveryBit) {
    std::mt19937 random(1);
    for (auto format : {PixelFormat::Argb32, PixelFormat::Rgb24}) {
        const Bitmap image =
            testing::RandomPicture(random, 211, 97).CloneArea(0, 0, 211, 97, format);
        for (FileBytes file : {EncodePng(image), EncodePng(image, PngPacking::Fast)}) {
            const std::size_t kColorTypeAt = 25;
            EXPECT_EQ(file[kColorTypeAt],
                      format == PixelFormat::Rgb24 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA);
            file.push_back(0);  // bytes after the end don't matter
            EXPECT_TRUE(testing::SamePixels(DecodeImage(file), image));
        }
    }
    EXPECT_TRUE(EncodePng({}).empty());
}

TEST(PngRows, FiltersTakeWhatTheNeighboursSay) {
    PngRows rows{.Form = {.Width = 3, .Height = 2, .Colors = PngColors::Gray}, .Stride = 3};
    rows.Bytes = {10, 20, 15, 12, 9, 40};
    const struct {
        PngFilter Filter;
        FileBytes Expected;
    } cases[] = {
        {PngFilter::None, {0, 10, 20, 15, 0, 12, 9, 40}},
        {PngFilter::Left, {1, 10, 10, 251, 1, 12, 253, 31}},
        {PngFilter::Above, {2, 10, 20, 15, 2, 2, 245, 25}},
        {PngFilter::Mean, {3, 10, 15, 5, 3, 7, 249, 28}},
        // 12 + 20 - 10 is nearest to 20; 9 + 15 - 20 = 4 is nearest to 9.
        {PngFilter::Paeth, {4, 10, 10, 251, 4, 2, 245, 31}},
    };
    for (const auto& [filter, expected] : cases)
        EXPECT_EQ(FilterRows(rows, std::span(&filter, 1)), expected);
    // 10 + 20 + 15 against 10 + 10 + 5, and 12 + 9 + 40 against 12 + 3 + 31.
    constexpr PngFilter kBoth[] = {PngFilter::None, PngFilter::Left};
    EXPECT_EQ(FilterRows(rows, kBoth), cases[1].Expected);
}

TEST(PngRows, DecodersUndoEveryFilter) {
    std::mt19937 random(8);
    for (const PixelFormat format : {PixelFormat::Argb32, PixelFormat::Rgb24}) {
        const Bitmap image = testing::RandomPicture(random, 37, 23).CloneArea(0, 0, 37, 23, format);
        const PngRows rows = WholeRows(image);
        for (const PngFilter filter : {PngFilter::None, PngFilter::Left, PngFilter::Above,
                                       PngFilter::Mean, PngFilter::Paeth}) {
            const FileBytes file =
                AssemblePng(rows.Form, Deflate(FilterRows(rows, std::span(&filter, 1)), 1));
            testing::WithEachInstructionSet(
                [&] { EXPECT_TRUE(testing::SamePixels(DecodeImage(file), image)); });
        }
    }
}

// With these instead of the one IDAT chunk that it has.
FileBytes WithData(const FileBytes& png, const std::vector<FileBytes>& pieces) {
    constexpr std::ptrdiff_t kHeadBytes = 33, kEndBytes = 12;
    FileBytes file(png.begin(), png.begin() + kHeadBytes);
    const auto append = [&](std::size_t number) {
        for (int shift = 24; shift >= 0; shift -= 8)
            file.push_back(static_cast<std::uint8_t>(number >> shift));
    };
    for (FileBytes piece : pieces) {
        append(piece.size());
        piece.insert(piece.begin(), {'I', 'D', 'A', 'T'});
        file.insert(file.end(), piece.begin(), piece.end());
        append(Crc32(piece));
    }
    file.insert(file.end(), png.end() - kEndBytes, png.end());
    return file;
}

FileBytes Join(const FileBytes& first, const FileBytes& second) {
    FileBytes joined = first;
    joined.insert(joined.end(), second.begin(), second.end());
    return joined;
}

// As zlib packs with a window of 512 bytes.
FileBytes WithSmallWindow(const FileBytes& data) {
    constexpr int kWindowBits = 9, kMemory = 8;
    FileBytes stream(2 * data.size() + 100);
    z_stream zlib{};
    deflateInit2(&zlib, 9, Z_DEFLATED, kWindowBits, kMemory, Z_DEFAULT_STRATEGY);
    zlib.next_in = const_cast<Bytef*>(data.data());
    zlib.avail_in = static_cast<uInt>(data.size());
    zlib.next_out = stream.data();
    zlib.avail_out = static_cast<uInt>(stream.size());
    deflate(&zlib, Z_FINISH);
    stream.resize(zlib.total_out);
    deflateEnd(&zlib);
    return stream;
}

// Streams as others may write them, and damaged ones.
TEST(PngDecoder, ReadsStrangeStreamsAndRefusesDamagedOnes) {
    std::mt19937 random(9);
    Bitmap image = testing::RandomPicture(random, 37, 23);
    for (int y = 12; y < 23; ++y)
        std::copy_n(image.Row(y - 12), 37, image.MutableRow(y));
    const PngRows whole = WholeRows(image);
    constexpr PngFilter kFilter = PngFilter::None;
    const FileBytes rows = FilterRows(whole, std::span(&kFilter, 1));
    const FileBytes stream = Deflate(rows, 6);
    const FileBytes png = AssemblePng(whole.Form, stream);
    const std::vector<FileBytes> good[] = {
        {{stream.begin(), stream.begin() + 1}, {}, {stream.begin() + 1, stream.end()}},
        {Join(stream, {1, 2, 3})},
        {stream, {1, 2, 3}},
        {Deflate(Join(rows, rows), 6)},
        {WithSmallWindow(rows)},
    };
    for (const auto& pieces : good)
        EXPECT_TRUE(testing::SamePixels(DecodeImage(WithData(png, pieces)), image));

    FileBytes badFilter = rows;
    badFilter[badFilter.size() / 23 * 5] = 5;
    FileBytes badSum = stream;
    badSum.back() ^= 1;
    FileBytes badWindow = stream;              // equal rows are farther apart
    badWindow[0] = 0x08, badWindow[1] = 0x1D;  // 256 bytes
    const std::pair<FileBytes, const char*> bad[] = {
        {WithData(png, {Deflate(badFilter, 6)}), "filter"},
        {WithData(png, {badSum}), "incorrect data check"},
        {WithData(png, {{stream.begin(), stream.end() - 5}}), "ough image data"},
        {WithData(png, {Deflate({rows.begin(), rows.end() - 1}, 6)}), "ough image data"},
        {WithData(png, {badWindow}), "far back"},
    };
    for (const auto& [file, words] : bad)
        EXPECT_THAT(ProblemOf(file), HasSubstr(words));
    FileBytes badChecksum = png;
    badChecksum[png.size() - 13] ^= 1;
    EXPECT_THAT(ProblemOf(badChecksum), HasSubstr("CRC"));
}

}  // namespace
}  // namespace orbelle::graphics
