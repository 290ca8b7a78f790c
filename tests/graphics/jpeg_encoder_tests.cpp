#include <gmock/gmock.h>

#include <algorithm>

#include "graphics/codecs/image_files.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

using Bytes = std::vector<std::uint8_t>;

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
        const Bitmap read = DecodeImage(EncodeJpeg(image, 99));
        ASSERT_EQ(read.Width(), width);
        ASSERT_EQ(read.Height(), height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int channel : {testing::kBlue, testing::kGreen, testing::kRed})
                    ASSERT_NEAR(testing::ChannelAt(read, x, y, channel),
                                testing::ChannelAt(image, x, y, channel), 6)
                        << x << ", " << y << " of " << width << " x " << height;
    }
}

TEST(JpegEncoder, TheFileIsBaselineJfifAt96DpiWithFullColors) {
    const Bytes file = EncodeJpeg(Checks(300, 200), 99);
    const Bytes start = {0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F',
                         0,    1,    1,    1,    0, 96, 0,   96,  0,   0};
    ASSERT_GT(file.size(), start.size());
    EXPECT_TRUE(std::equal(start.begin(), start.end(), file.begin()));
    // Baseline frame: 8 bits, 200 x 300, three components with one sample per pixel each.
    const Bytes frame = {0xFF, 0xC0, 0, 17, 8,    0, 200, 1,    44, 3,
                         1,    0x11, 0, 2,  0x11, 1, 3,   0x11, 1};
    EXPECT_NE(std::ranges::search(file, frame).begin(), file.end());
}

TEST(JpegEncoder, AlphaIsDroppedAndQualityKeptInRange) {
    const Bitmap faint = testing::FilledPicture(8, 8, 0x00336699);
    const Bitmap solid = testing::FilledPicture(8, 8, 0xFF336699);
    EXPECT_EQ(EncodeJpeg(faint, 99), EncodeJpeg(solid, 99));
    EXPECT_EQ(EncodeJpeg(solid, -5), EncodeJpeg(solid, 1));
    EXPECT_EQ(EncodeJpeg(solid, 1000), EncodeJpeg(solid, 100));
    EXPECT_TRUE(EncodeJpeg(Bitmap(), 99).empty());
}

}  // namespace
}  // namespace orbelle::graphics
