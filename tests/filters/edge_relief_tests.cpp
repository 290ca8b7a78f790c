#include "filters/edge_relief.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>

#include "graphics/drawing_context.h"
#include "support/instruction_sets.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::MakeArgb;
using namespace testing;

// The rule as it is told: the alpha read last lives on, and counts again where a position lies
// outside.
class PlainRelief {
public:
    PlainRelief(const Bitmap& image, int width, int height)
        : width_(std::min(image.Width(), width)), height_(std::min(image.Height(), height)) {
        Picture = Bitmap(width, height);
        graphics::DrawingContext(Picture).DrawImageRect(
            image, {1, 1, float(image.Width() - 2), float(image.Height() - 2)});
    }

    void Run() {
        for (int y = 0; y < height_; ++y)
            for (int x = 0; x < width_; ++x)
                if (IsNearEdge(x, y, 100) && IsInside(x - 1, y - 1) && IsInside(x + 1, y + 1))
                    Darken(x, y);
        for (int y = 0; y < height_; ++y)
            for (int x = 0; x < width_; ++x)
                if (IsNearEdge(x, y, 150))
                    Emphasize(x, y);
    }

    Bitmap Picture;

private:
    bool IsInside(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

    bool IsNearEdge(int x, int y, int threshold) {
        bool isNear = false;
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                if (IsInside(x + dx, y + dy))
                    alpha_ = ChannelAt(Picture, x + dx, y + dy, kAlpha);
                isNear = isNear || alpha_ < threshold;
            }
        }
        return isNear;
    }

    void Darken(int x, int y) {
        for (const int channel : {kBlue, kGreen, kRed}) {
            int sum = ChannelAt(Picture, x, y, channel);
            for (const auto& [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
                sum += ChannelAt(Picture, x + dx, y + dy, channel);
            SetChannel(Picture, x, y, channel, sum / 6);
        }
    }

    void Emphasize(int x, int y) {
        for (const int channel : {kBlue, kGreen, kRed}) {
            int most = 0;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    if (IsInside(x + dx, y + dy))
                        most = std::max(most, ChannelAt(Picture, x + dx, y + dy, channel));
            const int value = ChannelAt(Picture, x, y, channel);
            SetChannel(Picture, x, y, channel, std::clamp(value - (most - value) + 5, 0, 255));
        }
    }

    int width_;
    int height_;
    int alpha_ = 0;
};

TEST(FreshStyle, AgreesWithThePlainForm) {
    WithEachInstructionSet([] {
        std::mt19937 random(1);
        for (const auto& [width, height] : SizesToTry(random)) {
            const Bitmap image = RandomPicture(random, width, height);
            for (const auto& [pageWidth, pageHeight] :
                 {std::pair{width, height}, {width + 5, height + 2}, {1, height}, {20, 10}}) {
                const StylePicture relief = FreshStyle(image, pageWidth, pageHeight);
                PlainRelief plain(image, pageWidth, pageHeight);
                plain.Run();
                ASSERT_TRUE(SamePixels(relief.Image, plain.Picture))
                    << width << " x " << height << " on " << pageWidth << " x " << pageHeight;
            }
        }
    });
}

// Drawn are 4 x 4 pixels of 120. The ring of them is darkened to 60 70 71 51 / 70 68 / 71 71 /
// 51 68 71 43 and then moved away from the 120 inside. The frame, transparent, goes down to 0, but
// for the two lower corners: when their turn comes, all around them is 0 already.
TEST(FreshStyle, SetsTheEdgeOfASquareOff) {
    const std::vector<std::vector<unsigned>> expected = {
        {0, 0, 0, 0, 0, 0},       {0, 5, 25, 27, 0, 0}, {0, 25, 120, 120, 21, 0},
        {0, 27, 120, 120, 27, 0}, {0, 0, 21, 27, 0, 0}, {5, 0, 0, 0, 0, 5}};
    const StylePicture relief = FreshStyle(FilledPicture(6, 6, MakeArgb(255, 120, 120, 120)), 8, 8);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool isDrawn = x > 0 && y > 0 && x < 5 && y < 5;
            const unsigned gray = x < 6 && y < 6 ? expected[y][x] : 0;
            EXPECT_EQ(relief.Image.GetPixel(x, y), MakeArgb(isDrawn ? 255 : 0, gray, gray, gray))
                << x << ", " << y;
        }
    }
}

TEST(FreshStyle, IsPageSizedButTellsTheSizeOfThePicture) {
    const StylePicture relief = FreshStyle(FilledPicture(6, 4, 0xFF787878), 16, 3);
    EXPECT_EQ(std::pair(relief.Image.Width(), relief.Image.Height()), std::pair(16, 3));
    EXPECT_EQ(std::tuple(relief.X, relief.Y, relief.Width, relief.Height), std::tuple(0, 0, 6, 4));
    for (const int side : {0, -1, INT_MIN, INT_MAX})
        EXPECT_TRUE(FreshStyle(FilledPicture(3, 3, 0xFF787878), side, 8).Image.IsEmpty()) << side;
}

}  // namespace
}  // namespace orbelle::filters
