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

int CrossAround(const Bitmap& image, int x, int y, int channel) {
    return ChannelAt(image, x + 1, y, channel) + ChannelAt(image, x - 1, y, channel) +
           ChannelAt(image, x, y + 1, channel) + ChannelAt(image, x, y - 1, channel);
}

template <class Change>
void ForEachInner(Bitmap& image, Change change) {
    for (int y = 1; y < image.Height() - 1; ++y) {
        for (int x = 1; x < image.Width() - 1; ++x)
            change(x, y);
    }
}

void PlainSmooth(Bitmap& image, int level) {
    const int own = 101 - level;
    if (own >= 26)
        return;
    ForEachInner(image, [&](int x, int y) {
        for (const int channel : {kBlue, kGreen, kRed, kAlpha}) {
            const int sum =
                own * ChannelAt(image, x, y, channel) + CrossAround(image, x, y, channel);
            SetChannel(image, x, y, channel, sum / (own + 4));
        }
    });
}

void PlainSharpen(Bitmap& image, int level) {
    const int own = 109 - level;
    ForEachInner(image, [&](int x, int y) {
        for (const int channel : {kBlue, kGreen, kRed}) {
            int value = (own + 1) * ChannelAt(image, x, y, channel);
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    value -= ChannelAt(image, x + dx, y + dy, channel);
            SetChannel(image, x, y, channel, std::clamp(value / (own - 8), 0, 255));
        }
    });
}

void PlainOutLine(Bitmap& image, int level) {
    constexpr int kOffset = 7;
    ForEachInner(image, [&](int x, int y) {
        for (const int channel : {kBlue, kGreen, kRed}) {
            const int sum = ChannelAt(image, x, y, channel) + CrossAround(image, x, y, channel);
            SetChannel(image, x, y, channel, sum / 5);
        }
    });
    const int strength = static_cast<int>(std::nearbyint(-level / 50.0));
    ForEachInner(image, [&](int x, int y) {
        for (const int channel : {kBlue, kGreen, kRed}) {
            const int value = ChannelAt(image, x, y, channel);
            int most = 0;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    most = std::max(most, ChannelAt(image, x + dx, y + dy, channel));
            SetChannel(image, x, y, channel,
                       std::clamp(value - (most - value) * strength + kOffset, 0, 255));
        }
    });
}

struct Comparison {
    const char* Name;
    std::function<void(Bitmap&, int)> Fast, Plain;
    std::vector<int> Levels;
};

TEST(BlurSharpen, AgreesWithThePlainForm) {
    const auto outLine = [](Bitmap& image, int level) { OutLine(image, level, 7); };
    const Comparison comparisons[] = {
        {"Soften", Soften, PlainSoften, {0, 1, 50, 85, 89, 90, 91, 99, 100}},
        {"Smooth", Smooth, PlainSmooth, {0, 75, 76, 80, 99, 100}},
        {"Sharpen", Sharpen, PlainSharpen, {0, 1, 50, 79, 80, 81, 99, 100}},
        {"OutLine", outLine, PlainOutLine, {-125, -75, -50, -25, 0, 25, 50, 100}},
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
    for (const auto filter : {Soften, Smooth, Sharpen}) {
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
    EXPECT_THAT(std::vector(picture.Pixels(), picture.Pixels() + 9), ElementsAreArray(expected));
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

// (21 x 100 + 10 + 20 + 30 + 44) / 25 = 88, then (21 x 10 + 63 + 88 + 5 + 8) / 25 = 14.96, where
// the old 100 would give 15.
TEST(Smooth, DropsTheRemainderAndReadsWhatItHasRewritten) {
    Bitmap picture = Blues({{99, 44, 8, 99}, {20, 100, 10, 63}, {99, 30, 5, 99}});
    Smooth(picture, 80);
    EXPECT_THAT(BlueRow(picture, 1), ElementsAre(20, 88, 14, 63));
    EXPECT_THAT(BlueRow(picture, 0), ElementsAre(99, 44, 8, 99));
}

// (29 x 121 - 800) / 21 = 129; then (29 x 100 - 700 - 129) / 21 = 98.6, where the old 121 would
// give 99.
TEST(Sharpen, DropsTheRemainderAndReadsWhatItHasRewritten) {
    Bitmap picture = Blues({{100, 100, 100, 100}, {100, 121, 100, 100}, {100, 100, 100, 100}});
    Sharpen(picture, kSharpenLevel);
    EXPECT_THAT(BlueRow(picture, 1), ElementsAre(100, 129, 98, 100));
    EXPECT_THAT(BlueRow(picture, 2), ElementsAre(100, 100, 100, 100));
}

// The blur gives (100 + 10 + 20 + 30 + 45) / 5 = 41; the largest value around is 60. Half of 50 and
// three halves of it go to the even strength, 0 and 2.
TEST(OutLine, MovesAwayFromTheBrightestByAWholeNumberOfDistances) {
    const std::vector<std::pair<int, int>> expectations = {
        {-50, 41 - 19 + 5}, {-25, 41 + 5}, {-75, 41 - 2 * 19 + 5}, {50, 41 + 19 + 5}, {-500, 0},
        {INT_MAX, 255},     {INT_MIN, 0}};
    for (const auto& [level, expected] : expectations) {
        Bitmap picture = Blues({{60, 45, 60}, {20, 100, 10}, {60, 30, 60}});
        OutLine(picture, level, 5);
        EXPECT_THAT(BlueRow(picture, 1), ElementsAre(20, expected, 10)) << level;
    }
}

}  // namespace
}  // namespace orbelle::filters
