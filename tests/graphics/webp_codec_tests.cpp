#include <webp/encode.h>

#include <functional>

#include "graphics/codecs/image_codecs.h"
#include "graphics/decoding.h"
#include "profiles.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

FileBytes MakeWebp(const Bitmap& picture, bool isLossless) {
    WebPConfig config;
    WebPConfigPreset(&config, WEBP_PRESET_DEFAULT, 95);
    config.lossless = isLossless ? 1 : 0;
    config.exact = 1;
    WebPPicture image;
    WebPPictureInit(&image);
    image.use_argb = 1;
    image.width = picture.Width();
    image.height = picture.Height();
    WebPPictureImportBGRA(&image, reinterpret_cast<const std::uint8_t*>(picture.Row(0)),
                          picture.Width() * 4);
    WebPMemoryWriter writer;
    WebPMemoryWriterInit(&writer);
    image.writer = WebPMemoryWrite;
    image.custom_ptr = &writer;
    EXPECT_TRUE(WebPEncode(&config, &image));
    const FileBytes file(writer.mem, writer.mem + writer.size);
    WebPMemoryWriterClear(&writer);
    WebPPictureFree(&image);
    return file;
}

FileBytes Chunk(const std::string& name, FileBytes contents) {
    FileBytes chunk(name.begin(), name.end());
    for (int shift = 0; shift < 32; shift += 8)
        chunk.push_back(static_cast<std::uint8_t>(contents.size() >> shift));
    chunk.insert(chunk.end(), contents.begin(), contents.end());
    if (contents.size() % 2 != 0)
        chunk.push_back(0);
    return chunk;
}

FileBytes Joined(const std::vector<FileBytes>& parts) {
    FileBytes whole;
    for (const FileBytes& part : parts)
        whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

FileBytes Riff(const std::vector<FileBytes>& chunks) {
    const FileBytes name = {'W', 'E', 'B', 'P'};
    return Chunk("RIFF", Joined({name, Joined(chunks)}));
}

constexpr std::uint8_t kHasAnimation = 0x02, kHasAlpha = 0x10, kHasProfile = 0x20;

FileBytes Canvas(std::uint8_t flags, std::uint8_t width, std::uint8_t height) {
    const auto lessOne = [](std::uint8_t side) { return static_cast<std::uint8_t>(side - 1); };
    return Chunk("VP8X", {flags, 0, 0, 0, lessOne(width), 0, 0, lessOne(height), 0, 0});
}

// The chunk of pixels of a simple file.
FileBytes PixelsIn(const FileBytes& file) {
    return {file.begin() + 12, file.end()};
}

FileBytes Frame(std::uint8_t x, std::uint8_t y, const Bitmap& picture) {
    const auto side = [](int number) { return static_cast<std::uint8_t>(number - 1); };
    const FileBytes head = {static_cast<std::uint8_t>(x / 2),
                            0,
                            0,
                            static_cast<std::uint8_t>(y / 2),
                            0,
                            0,
                            side(picture.Width()),
                            0,
                            0,
                            side(picture.Height()),
                            0,
                            0,
                            100,
                            0,
                            0,
                            0};
    return Chunk("ANMF", Joined({head, PixelsIn(MakeWebp(picture, true))}));
}

TEST(WebpDecoder, ReadsPicturesWithoutLossAsTheyWere) {
    std::mt19937 random(3);
    const Bitmap picture = testing::RandomPicture(random, 37, 21);
    const FileBytes file = MakeWebp(picture, true);
    EXPECT_TRUE(IsPicture(MemorySource(file)));
    EXPECT_TRUE(testing::SamePixels(DecodeImage(file), picture));
    const FileBytes small = MakeWebp(testing::RandomPicture(random, 5, 4), true);
    ExpectCutsToThrow(small, small.size() - 8);
    ExpectToSurviveDamage(small);
}

TEST(WebpDecoder, ReadsPicturesWithLoss) {
    const Bitmap picture = testing::FilledPicture(33, 18, 0x80C08040);
    const FileBytes file = MakeWebp(picture, false);
    const Bitmap read = DecodeImage(file);
    ASSERT_EQ(read.Width(), 33);
    for (int channel = 0; channel < 32; channel += 8)
        EXPECT_NEAR(testing::ChannelAt(read, 16, 9, channel),
                    testing::ChannelAt(picture, 16, 9, channel), channel == 24 ? 0 : 4);
    ExpectToSurviveDamage(file);
}

// Beside it the canvas is transparent, whatever background the file names.
TEST(WebpDecoder, ShowsTheFirstFrameOfAnAnimationOnItsCanvas) {
    const FileBytes file =
        Riff({Canvas(kHasAnimation | kHasAlpha, 6, 4), Chunk("ANIM", {9, 9, 9, 255, 0, 0}),
              Frame(2, 2, testing::FilledPicture(3, 2, 0xFF204060)),
              Frame(0, 0, testing::FilledPicture(6, 4, 0xFFFFFFFF))});
    const Bitmap read = DecodeImage(file);
    ASSERT_EQ(read.Width(), 6);
    ASSERT_EQ(read.Height(), 4);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(*read.GetPixel(x, y), y >= 2 && x >= 2 && x < 5 ? 0xFF204060 : 0u);
    ExpectToSurviveDamage(file);
}

TEST(WebpDecoder, TurnsColorsToSrgb) {
    const FileBytes pixels = PixelsIn(MakeWebp(testing::FilledPicture(2, 2, 0x8078C83C), true));
    const auto read = [&](const FileBytes& profile) {
        return *DecodeImage(
                    Riff({Canvas(kHasAlpha | kHasProfile, 2, 2), Chunk("ICCP", profile), pixels}))
                    .GetPixel(0, 0);
    };
    EXPECT_EQ(read(testing::AdobeRgbProfile()), 0x8033C925);
    EXPECT_EQ(read(testing::SrgbProfile()), 0x8078C83C);
    EXPECT_EQ(read({1, 2, 3}), 0x8078C83C);
}

TEST(WebpDecoder, ChecksTheSizeBeforeItTakesMemory) {
    FileBytes file =
        Riff({Canvas(0, 2, 2), PixelsIn(MakeWebp(testing::FilledPicture(2, 2, 1), true))});
    file[24] = file[25] = file[27] = file[28] = 0x3F;
    EXPECT_NE(ProblemOf(file), "");
    PixelBudget budget{3};
    EXPECT_THROW(DecodeWebp(MemorySource(MakeWebp(testing::FilledPicture(2, 2, 1), true)), budget),
                 ImageError);
}

// Documents hold what they always held.
TEST(WebpDecoder, IsNoneOfADocument) {
    PixelBudget budget;
    const FileBytes file = MakeWebp(testing::FilledPicture(2, 2, 1), true);
    EXPECT_THROW(DecodeStoredImage(MemorySource(file), budget), ImageError);
}

}  // namespace
}  // namespace orbelle::graphics
