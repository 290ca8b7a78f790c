#include <gtest/gtest.h>

#include "graphics/codecs/image_files.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

// Depth and kind of colours, as the header has them.
std::pair<int, int> FormOf(const std::vector<std::uint8_t>& png) {
    return {png[24], png[25]};
}

// What can be seen of them.
void ExpectSameToTheEye(const Bitmap& expected, const Bitmap& actual) {
    ASSERT_EQ(expected.Width(), actual.Width());
    ASSERT_EQ(expected.Height(), actual.Height());
    for (int y = 0; y < expected.Height(); ++y) {
        for (int x = 0; x < expected.Width(); ++x) {
            const Argb color = expected.Row(y)[x];
            ASSERT_EQ(AlphaOf(color) == 0 ? 0 : color, actual.Row(y)[x]) << x << ", " << y;
        }
    }
}

// So many different ones, scattered.
Bitmap PictureOfColors(std::mt19937& random, int colors, Argb (*color)(unsigned)) {
    Bitmap picture(61, 64);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x)
            picture.SetPixel(x, y, color(random() % static_cast<unsigned>(colors)));
    }
    return picture;
}

TEST(SmallPng, EveryVisiblePixelStaysInAFormThatSuitsThem) {
    const auto clear = [](unsigned i) -> Argb {
        return i == 0 ? 0x00123456 : 0xFF000000 + i * 77777;
    };
    const auto gray = [](unsigned i) -> Argb { return 0xFF000000 + i * 0x010101; };
    const auto faint = [](unsigned i) -> Argb { return (i % 200 + 1) << 24 | i % 251 * 0x010101; };
    const auto many = [](unsigned i) -> Argb { return 0xFF000000 + i * 7654321 % 0xFFFFFF; };
    std::mt19937 random(5);
    using Form = std::pair<int, int>;
    const struct {
        Bitmap Picture;
        Form Expected;
    } cases[] = {
        {PictureOfColors(random, 2, clear), Form(1, 3)},
        {PictureOfColors(random, 4, clear), Form(2, 3)},
        {PictureOfColors(random, 13, clear), Form(4, 3)},
        {PictureOfColors(random, 256, gray), Form(8, 0)},
        {PictureOfColors(random, 3000, faint), Form(8, 4)},
        {PictureOfColors(random, 3000, many), Form(8, 2)},
        {testing::RandomPicture(random, 37, 23), Form(8, 6)},
    };
    for (const auto& [picture, form] : cases) {
        const std::vector<std::uint8_t> png = EncodeSmallPng(picture);
        EXPECT_EQ(FormOf(png), form);
        ExpectSameToTheEye(picture, DecodeImage(png));
        EXPECT_LE(png.size(), EncodePng(picture).size());
    }
    EXPECT_TRUE(EncodeSmallPng(Bitmap()).empty());
}

}  // namespace
}  // namespace orbelle::graphics
