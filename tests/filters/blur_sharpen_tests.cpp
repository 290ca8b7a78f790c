#include "filters/blur_sharpen.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

#include "support/instruction_sets.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::MakeArgb;
using ::testing::ElementsAre;
using namespace testing;

// The operations as they are told, a channel of a pixel at a time.

void PlainSoften(Bitmap& image, int level) {
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = 0; x < image.Width(); ++x) {
            for (const int channel : {kBlue, kGreen, kRed}) {
                int count = 101 - level;
                int sum = count * ChannelAt(image, x, y, channel);
                for (int dy = -1; dy <= 1; ++dy) {
                    for (int dx = -1; dx <= 1; ++dx) {
                        if (dx != dy && IsInside(image, x + dx, y + dy) &&
                            ChannelAt(image, x + dx, y + dy, kAlpha) != 0) {
                            sum += ChannelAt(image, x + dx, y + dy, channel);
                            ++count;
                        }
                    }
                }
                SetChannel(image, x, y, channel,
                           static_cast<int>(std::nearbyint(sum / double(count))));
            }
        }
    }
}

void PlainSharpen(Bitmap& image, int level) {
    const int own = 109 - level;
    for (int y = 1; y < image.Height() - 1; ++y) {
        for (int x = 1; x < image.Width() - 1; ++x) {
            for (const int channel : {kBlue, kGreen, kRed}) {
                int value = (own + 1) * ChannelAt(image, x, y, channel);
                for (int dy = -1; dy <= 1; ++dy)
                    for (int dx = -1; dx <= 1; ++dx)
                        value -= ChannelAt(image, x + dx, y + dy, channel);
                SetChannel(image, x, y, channel, std::clamp(value / (own - 8), 0, 255));
            }
        }
    }
}

TEST(BlurSharpen, AgreesWithThePlainForm) {
    WithEachInstructionSet([] {
        std::mt19937 random(1);
        for (const auto& [filter, plainFilter] :
             {std::pair(&Soften, &PlainSoften), {&Sharpen, &PlainSharpen}}) {
            for (const int level : {0, 1, 50, 79, 80, 81, 85, 89, 90, 91, 99, 100}) {
                for (const auto& [width, height] : SizesToTry(random)) {
                    Bitmap fast = RandomPicture(random, width, height), plain = fast;
                    filter(fast, level);
                    plainFilter(plain, level);
                    ASSERT_TRUE(SamePixels(fast, plain))
                        << (filter == &Soften ? "Soften " : "Sharpen ") << level << ": " << width
                        << " x " << height;
                }
            }
        }
    });
}

TEST(BlurSharpen, AUniformPictureStaysUnderEveryBlurAndSharpening) {
    const Bitmap before = FilledPicture(9, 8, 0xFF4080C1);
    for (const auto filter : {Soften, Sharpen}) {
        for (const int level : {INT_MIN, 0, 80, 90, 100, INT_MAX}) {
            Bitmap after = before;
            filter(after, level);
            EXPECT_TRUE(SamePixels(after, before)) << level;
        }
    }
}

// 18 / 12, 6 / 12 and 30 / 12 are ties.
TEST(Soften, SpreadsIntoTransparentPixelsButNotAlongTheFallingDiagonal) {
    Bitmap picture(3, 3);
    picture.SetPixel(1, 1, MakeArgb(255, 18, 6, 30));
    Soften(picture, kBlurLevel);
    const graphics::Argb tint = MakeArgb(0, 2, 0, 2);
    EXPECT_THAT(PixelsOf(picture),
                ElementsAre(0, tint, tint, tint, MakeArgb(255, 18, 6, 30), tint, tint, tint, 0));
}

// Pairs of visible pixels in a transparent field, one for each two values: the left ones are means
// that count one neighbour.
TEST(Soften, RoundsEveryMeanOfTwoPixels) {
    Bitmap pairs(256 * 3, 256 * 2);
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x) {
            pairs.SetPixel(3 * x, 2 * y, MakeArgb(255, y, y, y));
            pairs.SetPixel(3 * x + 1, 2 * y, MakeArgb(1, x, x, x));
        }
    }
    WithEachInstructionSet([&] {
        for (int level = 0; level <= 100; ++level) {
            const int own = 101 - level;
            Bitmap picture = pairs;
            Soften(picture, level);
            for (int y = 0; y < 256; ++y) {
                for (int x = 0; x < 256; ++x) {
                    const auto mean =
                        static_cast<unsigned>(std::nearbyint((own * y + x) / (own + 1.0)));
                    ASSERT_EQ(picture.Row(2 * y)[3 * x], MakeArgb(255, mean, mean, mean))
                        << level << ": " << y << ", " << x;
                }
            }
        }
    });
}

}  // namespace
}  // namespace orbelle::filters
