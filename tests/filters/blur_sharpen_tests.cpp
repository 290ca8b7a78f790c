#include "filters/blur_sharpen.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>

#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::MakeARGB;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using namespace testing;

// An opaque picture with these blues.
Bitmap Blues(const std::vector<std::vector<int>>& rows) {
    Bitmap picture =
        FilledPicture(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()), 0xFF000000);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            SetChannel(picture, x, y, kBlue, rows[y][x]);
    return picture;
}

std::vector<int> BlueRow(const Bitmap& picture, int y) {
    std::vector<int> blues;
    for (int x = 0; x < picture.Width(); ++x)
        blues.push_back(ChannelAt(picture, x, y, kBlue));
    return blues;
}

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

struct Comparison {
    const char* Name;
    std::function<void(Bitmap&, int)> Fast, Plain;
    std::vector<int> Levels;
};

TEST(BlurSharpen, AgreesWithThePlainForm) {
    const Comparison comparisons[] = {
        {"Soften", Soften, PlainSoften, {0, 1, 50, 85, 89, 90, 91, 99, 100}},
        {"Sharpen", Sharpen, PlainSharpen, {0, 1, 50, 79, 80, 81, 99, 100}},
    };
    std::mt19937 random(1);
    for (const Comparison& comparison : comparisons) {
        for (const int level : comparison.Levels) {
            for (const auto& [width, height] : SizesToTry(random)) {
                Bitmap fast = RandomPicture(random, width, height);
                Bitmap plain = fast;
                comparison.Fast(fast, level);
                comparison.Plain(plain, level);
                ASSERT_TRUE(SamePixels(fast, plain))
                    << comparison.Name << " " << level << ": " << width << " x " << height;
            }
        }
    }
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
    picture.SetPixel(1, 1, MakeARGB(255, 18, 6, 30));
    Soften(picture, kBlurLevel);
    const graphics::Argb tint = MakeARGB(0, 2, 0, 2);
    const graphics::Argb expected[] = {0,    tint, tint, tint, MakeARGB(255, 18, 6, 30),
                                       tint, tint, tint, 0};
    EXPECT_THAT(PixelsOf(picture), ElementsAreArray(expected));
}

// 120 x 11 / 12 = 110, and the new 110 / 13 = 8.46, where the old 120 would give 9.
TEST(Soften, ReadsWhatItHasRewritten) {
    Bitmap row = Blues({{120, 0, 0}});
    Soften(row, kBlurLevel);
    EXPECT_THAT(BlueRow(row, 0), ElementsAre(110, 8, 1));
    Bitmap column = Blues({{120}, {0}, {0}});
    Soften(column, kBlurLevel);
    EXPECT_EQ(ChannelAt(column, 0, 1, kBlue), 8);
}

// Pairs of visible pixels in a transparent field, one for each two values: the left ones are means
// that count one neighbour.
TEST(Soften, RoundsEveryMeanOfTwoPixels) {
    Bitmap pairs(256 * 3, 256 * 2);
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x) {
            pairs.SetPixel(3 * x, 2 * y, MakeARGB(255, y, y, y));
            pairs.SetPixel(3 * x + 1, 2 * y, MakeARGB(1, x, x, x));
        }
    }
    for (int level = 0; level <= 100; ++level) {
        const int own = 101 - level;
        Bitmap picture = pairs;
        Soften(picture, level);
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 256; ++x) {
                const auto mean =
                    static_cast<unsigned>(std::nearbyint((own * y + x) / (own + 1.0)));
                ASSERT_EQ(picture.Row(2 * y)[3 * x], MakeARGB(255, mean, mean, mean))
                    << level << ": " << y << ", " << x;
            }
        }
    }
}

// (29 x 121 - 800) / 21 = 129; then (29 x 100 - 700 - 129) / 21 = 98.6, where the old 121 would
// give 99.
TEST(Sharpen, DropsTheRemainderAndReadsWhatItHasRewritten) {
    Bitmap picture = Blues({{100, 100, 100, 100}, {100, 121, 100, 100}, {100, 100, 100, 100}});
    Sharpen(picture, kSharpenLevel);
    EXPECT_THAT(BlueRow(picture, 1), ElementsAre(100, 129, 98, 100));
    EXPECT_THAT(BlueRow(picture, 2), ElementsAre(100, 100, 100, 100));
}

}  // namespace
}  // namespace orbelle::filters
